#include "harness/arena.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

namespace test {
namespace {

constexpr size_t  margin     = 64;  // guard bytes on either side
constexpr uint8_t guard_byte = 0xD5;

size_t page() { return size_t(sysconf(_SC_PAGESIZE)); }

bool all_guard(const uint8_t* from, const uint8_t* to) {
  return std::all_of(from, to, [](uint8_t b) { return b == guard_byte; });
}

}  // namespace

arena::arena(size_t bytes) {
  const size_t usable = (bytes + 2 * margin + 16 + page() - 1) / page() * page();
  mapped_             = usable + 2 * page();
  void* const m       = mmap(nullptr, mapped_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (m == MAP_FAILED) perror("arena"), abort();
  mapping_ = static_cast<uint8_t*>(m);
  begin_   = mapping_ + page();
  end_     = begin_ + usable;
  if (mprotect(begin_, usable, PROT_READ | PROT_WRITE) != 0) perror("arena"), abort();
}

arena::~arena() { munmap(mapping_, mapped_); }

size_t arena::capacity() const { return size_t(end_ - begin_) - 2 * margin - 16; }

uint8_t* arena::place(size_t bytes, placement where) {
  if (bytes > capacity()) fprintf(stderr, "arena too small for %zu bytes\n", bytes), abort();
  switch (where.where) {
    case placement::begins_at_page:
      array_ = begin_;
      break;
    case placement::ends_at_page:
      array_ = end_ - bytes;
      break;
    case placement::inside:
      array_ = begin_ + margin + where.offset;
      break;
  }
  array_end_ = array_ + bytes;
  memset(std::max(begin_, array_ - margin), guard_byte, size_t(array_ - std::max(begin_, array_ - margin)));
  memset(array_end_, guard_byte, size_t(std::min(end_, array_end_ + margin) - array_end_));
  return array_;
}

bool arena::guards_intact() const {
  return all_guard(std::max(begin_, array_ - margin), array_)
         && all_guard(array_end_, std::min(end_, array_end_ + margin));
}

std::ostream& operator<<(std::ostream& out, const placement& p) {
  switch (p.where) {
    case placement::begins_at_page:
      return out << "begins at a page";
    case placement::ends_at_page:
      return out << "ends at a page";
    default:
      return out << "offset " << p.offset;
  }
}

}  // namespace test
