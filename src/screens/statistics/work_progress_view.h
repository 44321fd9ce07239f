// How far a long work is, and the user's way out of it.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <chrono>
#include <memory>
#include <string_view>

namespace kav {

/// How long a work may take before there is anything to be seen of it.
inline constexpr std::chrono::milliseconds kProgressPatience{300};

/// To be asked now and then by a work that keeps the program from anything else. After `patience`,
/// a modal box over `parent` shows how far the work is, with a button to give it up; from then on
/// the program answers to that box, and to nothing else of the user's.
class WorkProgressView {
 public:
  WorkProgressView(QWidget* parent, std::u16string_view title,
                   std::chrono::milliseconds patience = kProgressPatience);
  WorkProgressView(const WorkProgressView&) = delete;
  WorkProgressView& operator=(const WorkProgressView&) = delete;
  ~WorkProgressView();

  /// `done` is the part of the work that is done, 0 to 1; false once the user gave it up.
  bool Update(double done);

 private:
  class Box;

  QWidget* parent_;
  std::u16string_view title_;
  std::chrono::milliseconds patience_;
  QElapsedTimer elapsed_;
  std::unique_ptr<Box> box_;
};

}  // namespace kav
