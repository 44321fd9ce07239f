#include "app/application.h"

int main(int argc, char** argv) {
  return kav::RunApplication(argc, argv);
}
