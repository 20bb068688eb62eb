// The floor as a program of its own: `floor FILE` prints the number of rows and a checksum.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "floor_reader.h"

int main(int argc, char** argv) {
  const int file = argc == 2 ? open(argv[1], O_RDONLY) : -1;
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) {
    std::fputs("usage: floor FILE\n", stderr);
    return 2;
  }
  const auto size = static_cast<std::size_t>(status.st_size);
  void* memory = mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file, 0);
  if (memory == MAP_FAILED) {
    std::perror("floor");
    return 1;
  }
  const vrel::bench::FloorTable table = vrel::bench::readFloor({static_cast<char*>(memory), size});
  std::printf("%zu rows, checksum %.2f\n", table.rows, vrel::bench::checksum(table));
  return 0;
}
