// An array beyond 4 GiB, for 64 bits: all but the last page of it lies over one small piece of memory.
#pragma once
#include <stdint.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

namespace test {

class long_array {
 public:
  static constexpr uint64_t repeated = uint64_t(4) << 30, piece = 4 << 20, last_page = 4096;

  long_array() {
    const int file = memfd_create("long_array", 0);
    if (file < 0 || ftruncate(file, piece) != 0) return;
    void* const all = mmap(nullptr, size_t(repeated + last_page), PROT_READ | PROT_WRITE,
                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (all == MAP_FAILED) return;
    begin_ = static_cast<char*>(all);
    for (uint64_t at = 0; at < repeated; at += piece)
      if (mmap(begin_ + at, piece, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED) abort();
    close(file);
    memset(begin_, 0x11, piece);
    memset(last(), 0x11, last_page);
  }
  ~long_array() {
    if (begin_) munmap(begin_, size_t(repeated + last_page));
  }
  long_array(const long_array&)            = delete;
  long_array& operator=(const long_array&) = delete;

  bool  ready() const { return begin_ != nullptr; }
  void* data() const { return begin_; }
  char* last() const { return begin_ + size_t(repeated); }  // the first byte beyond 4 GiB

 private:
  char* begin_ = nullptr;
};

}  // namespace test
