// Runs an array function over lengths, alignments and page ends, and compares each result with the definition.
//
//   check_layouts<&::tavsAdd_32f, Tav32f, Tav32f, Tav32f>(lengths_around({11}), call, expected);
//
// The types are those of the destination and then the sources. `call(dst, len, sources...)` makes the call under test;
// `expected(dst, sources...)` overwrites the vector dst (which holds what the destination held before) with what should
// come out, and returns the status.
#pragma once
#include <set>
#include <tuple>
#include <utility>

#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"

namespace test {

// 1 to 130, and around each of the thresholds given.
std::set<int> lengths_around(std::initializer_list<int> thresholds, int all_up_to = 130);

struct layout {
  placement dst, src;
  unsigned  src_step;  // by how much the offset of each further source differs
};

std::ostream& operator<<(std::ostream& out, const layout& l);

// Every offset of the destination against a source on the same offset, on a boundary and elsewhere, and the page ends.
std::vector<layout> all_layouts();
std::vector<layout> few_layouts();

inline constexpr int    few_layouts_above = 130;  // elements
inline constexpr size_t largest_element   = 16;

// The elements of an array of some type.
struct any_array {
  virtual ~any_array()                                  = default;
  virtual void   draw(source_of_data& data, size_t n)   = 0;
  virtual void   put(uint8_t* where) const              = 0;
  virtual long   first_difference(const uint8_t*) const = 0;
  virtual size_t bytes() const                          = 0;
};

template <class T> struct typed_array final : any_array {
  std::vector<T> values;

  void draw(source_of_data& data, size_t n) override { values = data.values<T>(n); }
  void put(uint8_t* where) const override {
    if (!values.empty()) memcpy(where, values.data(), bytes());
  }
  long first_difference(const uint8_t* there) const override {
    std::vector<T> v(values.size());
    if (!v.empty()) memcpy(v.data(), there, bytes());
    return test::first_difference(v, values);
  }
  size_t bytes() const override { return values.size() * sizeof(T); }
};

// An export under test whatever its types: the destination first, then the sources.
struct layout_test {
  std::vector<any_array*>                              arrays;
  callback<TavStatus(uint8_t* const* arrays, int len)> call;
  callback<TavStatus()>                                expected;
  const std::set<int>&                                 lengths;
  uint32_t                                             seed;
};
void check_layouts_of(const layout_test& t, bool split);

template <auto* Export, class D, class... S, class Call, class Expected>
void check_layouts(const std::set<int>& lengths, const Call& call, const Expected& expected, uint32_t seed = 1) {
  [&]<size_t... I>(std::index_sequence<I...>) {
    typed_array<D>                dst;
    std::tuple<typed_array<S>...> sources;
    const auto                    call_it = [&](uint8_t* const* arrays, int len) {
      return call(reinterpret_cast<D*>(arrays[0]), len, reinterpret_cast<const S*>(arrays[I + 1])...);
    };
    const auto expect = [&] { return expected(dst.values, std::as_const(std::get<I>(sources).values)...); };
    check_layouts_of({{&dst, &std::get<I>(sources)...}, call_it, expect, lengths, seed}, tav::is_split<Export>);
  }
  (std::index_sequence_for<S...>{});
}

}  // namespace test
