// Complex elements are pairs of parts.
#pragma once

namespace test {

template <class T> inline constexpr bool is_pair = requires(T v) { v.re; };

template <class T> struct part_row { using type = T; };
template <class T>
requires is_pair<T>
struct part_row<T> {
  using type = decltype(T::re);
};
template <class T> using part_of = typename part_row<T>::type;  // a real element's own type

}  // namespace test
