// Arrays for calls under test, placed where a stray access shows.
//
// An arena is writable memory between two unreadable pages. An array may begin at the first, end at the second, or lie
// inside at a byte offset of 0 to 15, watched by guard bytes on both sides. It may stand at any address, so its
// elements go in and out by copy.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include <ostream>
#include <vector>

namespace test {

struct placement {
  enum kind { begins_at_page, ends_at_page, inside } where = inside;
  unsigned offset                                          = 0;  // bytes past a 16-byte boundary, inside only
};
std::ostream& operator<<(std::ostream& out, const placement& p);

class arena {
 public:
  explicit arena(size_t bytes);
  ~arena();
  arena(const arena&)            = delete;
  arena& operator=(const arena&) = delete;

  // Where an array of that size goes; the guard bytes around it are set.
  uint8_t* place(size_t bytes, placement where);
  // Whether the guard bytes around the array placed last are as place() left them.
  bool guards_intact() const;

  size_t capacity() const;

 private:
  uint8_t *mapping_, *begin_, *end_;  // the mapping with its pages, and the usable stretch
  size_t   mapped_;
  uint8_t *array_ = nullptr, *array_end_ = nullptr;
};

template <class T> class array {
 public:
  array(arena& home, size_t n, placement where) : home_(home), data_(home.place(n * sizeof(T), where)), size_(n) {}

  T*     data() const { return reinterpret_cast<T*>(data_); }
  size_t size() const { return size_; }
  bool   guards_intact() const { return home_.guards_intact(); }

  void assign(const std::vector<T>& values) {
    if (!values.empty()) __builtin_memcpy(data_, values.data(), size_ * sizeof(T));
  }
  std::vector<T> values() const {
    std::vector<T> v(size_);
    if (size_ != 0) __builtin_memcpy(v.data(), data_, size_ * sizeof(T));
    return v;
  }

 private:
  arena&   home_;
  uint8_t* data_;
  size_t   size_;
};

}  // namespace test
