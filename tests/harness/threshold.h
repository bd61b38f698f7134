// What the tests of tavsThreshold_* share: layouts with arguments drawn for each call, levels among the elements, and
// the rows of faults.
#pragma once
#include <tuple>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/threshold.h"

namespace test {

inline std::set<int> threshold_lengths() { return lengths_around({600}, 100); }

// dst[i] = one(src[i], arguments...), apart, onto itself, and by the form in place. `draw(data)` gives a tuple of the
// arguments behind the length; `status(src, arguments...)` what the call returns.
template <auto* Apart, auto* InPlace, class T, class... A, class Draw, class One, class Status>
void threshold_of(TavStatus (*)(const T*, T*, int, A...), const Draw& draw, const One& one, const Status& status) {
  source_of_data   data(31);
  std::tuple<A...> given;
  const auto       each = [&](std::vector<T>& dst, const std::vector<T>& src) {
    given = draw(data);
    return std::apply(
        [&](A... a) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i], a...);
          return status(src, a...);
        },
        given);
  };
  const auto onto_itself = [&](std::vector<T>& dst) { return each(dst, std::vector(dst)); };
  const auto with_given  = [&](auto... first) {
    return [&, first...](auto call_it) { return std::apply([&](A... a) { return call_it(first..., a...); }, given); };
  };
  const auto apart = [](auto... a) { return call<Apart>(a...); };
  check_layouts<Apart, T, T>(
      threshold_lengths(), [&](T* dst, int len, const T* src) { return with_given(src, dst, len)(apart); }, each);
  check_layouts<Apart, T>(
      lengths_around({}, 20), [&](T* dst, int len) { return with_given(dst, dst, len)(apart); }, onto_itself);
  check_layouts<InPlace, T>(
      threshold_lengths(),
      [&](T* dst, int len) { return with_given(dst, len)([](auto... a) { return call<InPlace>(a...); }); },
      onto_itself);
}

inline constexpr auto never_warns = [](const auto&, auto...) { return tavStatusOk; };

template <auto* Apart, auto* InPlace, class Draw, class One, class Status = decltype(never_warns)>
void check_threshold(const Draw& draw, const One& one, const Status& status = never_warns) {
  threshold_of<Apart, InPlace>(Apart, draw, one, status);
}

// A level for magnitudes: not negative, but for -0.0.
template <class T> T magnitude_level(source_of_data& data) {
  if (data.below(8) == 0) return T(data.below(2) ? 0.0 : -0.0);
  const T v = data.value<T>();
  if (v == std::numeric_limits<T>::lowest()) return std::numeric_limits<T>::max();
  return v < 0 ? T(-v) : v;
}

// Rows of faults. The arguments behind the length begin with the level, or with the lower one of a pair.
inline size_t level_of(const tested& f) { return f.pointers() + 1; }

inline faults pointers_and_length(const tested& f) {
  faults bad(f);
  bad.null_pointers().below_one(f.pointers());
  return bad;
}

inline void add_relations(faults& bad, size_t at) {
  for (int relation : {2, 1, 3, 5, -4, 260}) bad.value(at, relation, tavStatusBadArgument);
}

inline void any_level(const tested& f) { pointers_and_length(f).expect(); }

inline void level_not_below_0(const tested& f) {
  const size_t level = level_of(f);
  pointers_and_length(f)
      .value(level, -1, tavStatusNegativeLevel)
      .add("lowest level", tavStatusNegativeLevel, [=](arguments& a) { a.set_lowest(level); })
      .expect();
}

inline void relation(const tested& f) {
  faults bad = pointers_and_length(f);
  add_relations(bad, f.count - 1);
  bad.expect();
}

inline void relation_then_level_not_below_0(const tested& f) {
  const size_t level = level_of(f), last = f.count - 1;
  faults       bad = pointers_and_length(f);
  add_relations(bad, last);
  bad.add("level -1", tavStatusNegativeLevel, [=](arguments& a) { a.set(level, -1), a.set(last, 4); })
      .add("lowest level", tavStatusNegativeLevel, [=](arguments& a) { a.set_lowest(level), a.set(last, 0); })
      .expect();
}

inline void levels_not_crossed(const tested& f) {
  pointers_and_length(f).value(level_of(f), 3, tavStatusBadThresholdPair).expect();
}

}  // namespace test
