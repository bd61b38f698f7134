// Decisions drawn from the bytes that the fuzzer gives, and memory of exactly the size that a call may touch.
#pragma once
#include <stdio.h>
#include <stdlib.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>

#include "harness/data.h"

namespace fuzz {

// What no call may do. The sanitizers tell the rest.
[[noreturn]] inline void fail(const char* call, const char* what) {
  fprintf(stderr, "fuzz: %s: %s\n", call, what);
  abort();
}

inline uint32_t hash_of(const void* bytes, size_t size) {
  uint32_t h = 2166136261;
  for (size_t i = 0; i < size; ++i) h = (h ^ static_cast<const uint8_t*>(bytes)[i]) * 16777619;
  return h;
}

// Bytes first, and when they have run out numbers that follow from them.
class input {
 public:
  input(const uint8_t* bytes, size_t size) : next_(bytes), end_(bytes + size), more_(hash_of(bytes, size)) {}

  int  below(int n) { return int(word() % uint32_t(n)); }
  bool one_in(int n) { return below(n) == n - 1; }

  // Mostly a length that some loop ends at, and now and then one that is refused.
  int length() {
    const int kinds[] = {below(16), below(64), below(300), 16 * below(20), 1};
    return 1 + kinds[below(5)];
  }
  int refused_length() {
    const int refused[] = {0, -1, -300, INT32_MIN};
    return refused[below(4)];
  }

  // Of any size, small ones in the majority.
  int number() {
    const int kind = below(8);
    if (kind < 4) return below(9) - 4;
    if (kind < 7) return below(161) - 80;
    return int(more_.value<int32_t>());
  }

  test::source_of_data& data() { return more_; }

 private:
  uint32_t word() {
    if (end_ - next_ < 2) return more_.bits();
    const uint32_t v = uint32_t(next_[0]) << 8 | next_[1];
    next_ += 2;
    return v;
  }

  const uint8_t *      next_, *end_;
  test::source_of_data more_;
};

// Records and work areas hold what malloc gave, for memcheck to tell what is used without having been set.
inline bool unset_records = false;

struct unset {};

inline volatile bool odd;

// An array that ends where its memory ends, at some address, and what it held when that was last looked at.
class memory {
 public:
  memory(input& in, size_t bytes, unset) : memory(in, room{bytes}) {
    if (!unset_records) fill<uint8_t>(in);
  }
  template <class T>
  memory(input& in, size_t elements, T, size_t alignment = 1) : memory(in, room{elements * sizeof(T), alignment}) {
    fill<T>(in);
  }

  uint8_t* data() const { return block_.get() + offset_; }
  void     keep() const { before_.assign(data(), data() + bytes_); }
  bool     as_before() const { return bytes_ == 0 || memcmp(data(), before_.data(), bytes_) == 0; }
  void     restore() { copy_before(data()); }
  void     copy_before(uint8_t* to) const { std::copy(before_.begin(), before_.end(), to); }
  size_t   size() const { return bytes_; }

  std::vector<uint8_t>              content() const { return {data(), data() + bytes_}; }
  template <class T> std::vector<T> values() const {
    std::vector<T> v(bytes_ / sizeof(T));
    if (!v.empty()) memcpy(static_cast<void*>(v.data()), data(), v.size() * sizeof(T));
    return v;
  }

  // Branches on what it holds, which memcheck objects to if it follows from what nobody has set.
  void look() const {
    if (unset_records && __builtin_parity(std::accumulate(data(), data() + bytes_, 0u, std::bit_xor<unsigned>())))
      odd = true;
  }

 private:
  struct release {
    void operator()(uint8_t* p) const { free(p); }
  };

  struct room {
    size_t bytes, alignment = 1;
  };
  memory(input& in, room r) : bytes_(r.bytes), offset_(size_t(in.below(17)) / r.alignment * r.alignment) {
    block_.reset(static_cast<uint8_t*>(malloc(offset_ + bytes_)));
  }
  template <class T> void fill(input& in) {
    const std::vector<T> values = in.data().values<T>(bytes_ / sizeof(T));
    if (bytes_ != 0) memcpy(data(), values.data(), bytes_);
    keep();
  }

  size_t                              bytes_, offset_;
  std::unique_ptr<uint8_t[], release> block_;
  mutable std::vector<uint8_t>        before_;
};

using caller = void (*)(const char* name, void (*function)(), input& in);
struct row {
  const char* name;
  void (*function)();
  caller call;
};

void add_array_rows(std::vector<row>& rows);
void add_biquad_rows(std::vector<row>& rows);
void add_direct_rows(std::vector<row>& rows);
void add_fft_rows(std::vector<row>& rows);
void add_fir_rows(std::vector<row>& rows);
void add_iir_rows(std::vector<row>& rows);
void add_memory_rows(std::vector<row>& rows);

}  // namespace fuzz
