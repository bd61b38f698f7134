// What the tests of tavsThreshold_* share: layouts with arguments drawn for each call, levels among the elements, and
// the rows of faults.
#pragma once
#include <tuple>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/threshold.h"

namespace test {

inline std::set<int> threshold_lengths() { return lengths_around({200}, 100); }

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
template <class... P> inline constexpr size_t level_at = (size_t(std::is_pointer_v<P>) + ...) + 1;

template <class... P> std::vector<fault<P...>> pointers_and_length(TavStatus (*)(P...)) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  add_below_one<level_at<P...> - 1>(faults);
  return faults;
}

template <class... P> void add_relations(std::vector<fault<P...>>& faults) {
  const auto add = [&]<int Relation>() {
    faults.push_back({"relation " + std::to_string(Relation), tavStatusBadArgument,
                      [](arguments<P...>& a) { a.template set<sizeof...(P) - 1>(Relation); }});
  };
  add.template operator()<2>(), add.template operator()<1>(), add.template operator()<3>();
  add.template operator()<5>(), add.template operator()<-4>(), add.template operator()<260>();
}

template <bool Relation, class... P> void add_negative_level(std::vector<fault<P...>>& faults) {
  faults.push_back({"level -1", tavStatusNegativeLevel, [](arguments<P...>& a) {
                      a.template set<level_at<P...>>(-1);
                      if constexpr (Relation) a.template set<sizeof...(P) - 1>(4);
                    }});
  faults.push_back({"lowest level", tavStatusNegativeLevel, [](arguments<P...>& a) {
                      using level = std::tuple_element_t<level_at<P...>, std::tuple<P...>>;
                      a.template set<level_at<P...>>(std::numeric_limits<level>::lowest());
                      if constexpr (Relation) a.template set<sizeof...(P) - 1>(0);
                    }});
}

template <bool Relation, bool Magnitude, class... P> void threshold_faults(TavStatus (*function)(P...), auto each) {
  auto faults = pointers_and_length(function);
  if constexpr (Relation) add_relations(faults);
  if constexpr (Magnitude) add_negative_level<Relation>(faults);
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto any_level         = [](auto f, auto each) { threshold_faults<false, false>(f, each); };
inline constexpr auto level_not_below_0 = [](auto f, auto each) { threshold_faults<false, true>(f, each); };
inline constexpr auto relation          = [](auto f, auto each) { threshold_faults<true, false>(f, each); };
inline constexpr auto relation_then_level_not_below_0 = [](auto f, auto each) {
  threshold_faults<true, true>(f, each);
};

template <class... P> void levels_crossed_of(TavStatus (*function)(P...), auto each) {
  auto faults = pointers_and_length(function);
  faults.push_back(
      {"levels crossed", tavStatusBadThresholdPair, [](arguments<P...>& a) { a.template set<level_at<P...>>(3); }});
  each([&] { expect_faults(function, faults); });
}
inline constexpr auto levels_not_crossed = [](auto f, auto each) { levels_crossed_of(f, each); };

}  // namespace test
