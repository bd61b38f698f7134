// The four argument patterns of the extrema as one kind of call, whose results are compared bit by bit with the
// definition. They lie at odd addresses; nothing around them may change.
#pragma once
#include <functional>

#include "harness/faults.h"
#include "oracle/extrema.h"

namespace test {

template <class T> struct results {
  T*   values[2];
  int* places[2];
};

// A function under test: what it looks for, whether it tells the places, and a call of it.
template <class T> struct search {
  std::vector<oracle::extreme>                               wanted;
  bool                                                       tells_places;
  std::function<TavStatus(const T*, int, const results<T>&)> run;

  // What is wrong with the result for src, which holds these elements; empty if nothing.
  std::string fault_of(const T* src, const T* elements, int len) const {
    constexpr size_t first = 17, apart = 19, size = first + 4 * apart;  // odd, in any order
    uint8_t          room[size], expected[size];
    memset(room, 0xD5, size), memset(expected, 0xD5, size);
    const auto       at = [&](size_t k) { return room + first + k * apart; };
    const auto       in = [](uint8_t* p) { return reinterpret_cast<int*>(p); };
    const results<T> r{{reinterpret_cast<T*>(at(0)), reinterpret_cast<T*>(at(2))}, {in(at(1)), in(at(3))}};

    const TavStatus status = run(src, len, r);
    if (status != tavStatusOk) return "status " + std::to_string(status);
    size_t places[2] = {};
    for (size_t k = 0; k < wanted.size(); ++k) {
      places[k]       = wanted[k].place(elements, size_t(len));
      const T   value = wanted[k].value(elements[places[k]]);
      const int place = int(places[k]);
      memcpy(expected + first + 2 * k * apart, &value, sizeof value);
      if (tells_places) memcpy(expected + first + (2 * k + 1) * apart, &place, sizeof place);
    }
    if (memcmp(room, expected, size) == 0) return "";
    std::string what = "not what stands at";
    for (size_t k = 0; k < wanted.size(); ++k) what += " " + std::to_string(places[k]);
    return what + ", or not there, or something else was written";
  }
};

// The patterns.

template <class T> search<T> searching(oracle::extreme what, TavStatus (*f)(const T*, int, T*)) {
  return {{what}, false, [=](const T* src, int len, const results<T>& r) {
            return checked_call(f, src, len, r.values[0]);
          }};
}
template <class T> search<T> searching_index(oracle::extreme what, TavStatus (*f)(const T*, int, T*, int*)) {
  return {{what}, true, [=](const T* src, int len, const results<T>& r) {
            return checked_call(f, src, len, r.values[0], r.places[0]);
          }};
}
template <class T> search<T> without_index(oracle::extreme what, TavStatus (*f)(const T*, int, T*, int*)) {
  return {{what}, false, [=](const T* src, int len, const results<T>& r) {
            return checked_call(f, src, len, r.values[0], nullptr);
          }};
}
template <class T> search<T> searching_both(TavStatus (*f)(const T*, int, T*, T*)) {
  return {{oracle::smallest, oracle::largest}, false, [=](const T* src, int len, const results<T>& r) {
            return checked_call(f, src, len, r.values[0], r.values[1]);
          }};
}
template <class T> search<T> searching_both_indices(TavStatus (*f)(const T*, int, T*, int*, T*, int*)) {
  return {{oracle::smallest, oracle::largest}, true, [=](const T* src, int len, const results<T>& r) {
            return checked_call(f, src, len, r.values[0], r.places[0], r.values[1], r.places[1]);
          }};
}

// An index that is optional may be null at every other fault, too.
inline void around_optional_index(const tested& f) {
  faults bad(f);
  bad.null(0).null(2).below_one(1);
  bad.expect();
  bad.expect_after("no index", [](arguments& a) { a.spoil(3); });
}

inline constexpr auto around_length_and_result  = pointers_then_length_at<1>;
inline constexpr auto around_length_and_both    = pointers_then_length_at<2>;
inline constexpr auto around_length_and_indices = pointers_then_length_at<4>;

}  // namespace test
