// What the radix sorts are tried on: arrays whose digits vary, do not, or vary in one bit only.
#pragma once
#include <string>

#include "harness/arena.h"
#include "harness/data.h"
#include "oracle/total_order.h"

namespace test {

template <class T> struct named_input {
  std::string    name;
  std::vector<T> values;
};

template <class T> T of_bits(uint64_t bits) {
  T v;
  memcpy(&v, &bits, sizeof v);
  return v;
}

template <class T> std::vector<named_input<T>> radix_inputs(int len, uint32_t seed) {
  source_of_data data(seed);
  const auto     any    = [&] { return uint64_t(data.bits()) << 32 | data.bits(); };
  const auto     filled = [&](const auto& value) {
    std::vector<T> v((size_t(len)));
    for (T& x : v) x = value();
    return v;
  };
  const uint64_t base = any(), low = 0x7F, high = ~uint64_t(0) << (8 * sizeof(T) - 5);

  std::vector<named_input<T>> all;
  all.push_back({"extremes", data.values<T>(size_t(len))});
  all.push_back({"any bits", filled([&] { return of_bits<T>(any()); })});
  const T few[] = {of_bits<T>(any()), of_bits<T>(any()), of_bits<T>(any())};
  all.push_back({"three values", filled([&] { return few[data.below(3)]; })});
  all.push_back({"one value", filled([&] { return few[0]; })});
  all.push_back({"low bits", filled([&] { return of_bits<T>((base & ~low) | (any() & low)); })});
  all.push_back({"low bits of zero", filled([&] { return of_bits<T>(any() & low); })});
  all.push_back({"high bits", filled([&] { return of_bits<T>((base & ~high) | (any() & high)); })});
  all.push_back({"rising", oracle::sorted(all[1].values, false)});
  all.push_back({"falling", oracle::sorted(all[1].values, true)});
  return all;
}

// Values that differ in one bit only, for each of the bits.
template <class T> std::vector<named_input<T>> one_bit_inputs(int len) {
  source_of_data              data(5);
  std::vector<named_input<T>> all;
  for (int bit = 0; bit < int(8 * sizeof(T)); ++bit) {
    const uint64_t base = uint64_t(data.bits()) << 32 | data.bits();
    std::vector<T> v((size_t(len)));
    for (T& x : v) x = of_bits<T>(base ^ uint64_t(data.below(2)) << bit);
    all.push_back({"bit " + std::to_string(bit), v});
  }
  return all;
}

// Every byte offset in turn, and the ends of pages.
inline placement radix_placement(int turn) {
  if (turn % 18 == 16) return {placement::begins_at_page};
  if (turn % 18 == 17) return {placement::ends_at_page};
  return {placement::inside, unsigned(turn % 18)};
}

template <class T> bool same_bits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

}  // namespace test
