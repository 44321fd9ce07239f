#include "matrix/matrix_error.h"

#include <string>

#include "matrix/matrix_texts.h"

namespace kav {

CalcError MakeMatrixError(CalcErrorCode code, std::string_view subject) {
  if (code != CalcErrorCode::NotInteger) return MakeError(code, subject);
  return {code, std::string(subject).append(kNeitherFractionNorNegative)};
}

}  // namespace kav
