#include "base/platform.h"
#include "cmd/startup.h"

int main(int argc, char** argv) {
  vrel::runProgram(vrel::platform::commandLineWords(argc, argv));
  return 0;
}
