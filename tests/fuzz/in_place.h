// What an export in place has done, against the export of the same name without the mark of it.
//
// (srcDst, ...) stands for (src, dst, ...), (val, srcDst, ...) for (src, val, dst, ...), and (src, srcDst, ...) for
// (src, the former srcDst, dst, ...).
#pragma once
#include <string>

#include "fuzz/watch.h"
#include "tavs.h"

namespace fuzz {

// A zero may differ in its sign: where adding 0 spares the work, -0.0 stays, and else becomes 0.0.
template <class T> bool agree(const T& a, const T& b) {
  if constexpr (requires { a.re; })
    return agree(a.re, b.re) && agree(a.im, b.im);
  else
    return a == b || (a != a && b != b);
}

// The export of that name if it has that type.
template <class F> F* export_of(const std::string& name) {
  const export_notes* const n = notes_named(name.c_str());
  return n == nullptr || *n->type != typeid(F*) ? nullptr : reinterpret_cast<F*>(n->function);
}

// "Add_16s_Sfs" for "Add_16s_ISfs", nothing if that is no name of a call in place.
inline std::string name_apart(const std::string& name) {
  const size_t mark = name.rfind("_I");
  if (mark == name.npos || mark + 1 == name.size()) return {};
  const std::string end = name.substr(mark + 2);
  return name.substr(0, mark) + (end.empty() ? "" : "_" + end);
}

// How the call apart is made, if the arguments in place allow one.
template <class T>
concept writable = !std::is_const_v<T> && !std::is_pointer_v<T>;

template <class... A> struct apart { static constexpr bool possible = false; };
template <class T, class... R>
requires writable<T>
struct apart<T*, R...> {
  static constexpr bool possible = true;
  using element                  = T;
  using function                 = TavStatus(const T*, T*, R...);
  static TavStatus call(function* f, const T* from, T* to, T*, R... rest) { return f(from, to, rest...); }
};
template <class V, class T, class... R>
requires(!std::is_pointer_v<V> && writable<T>) struct apart<V, T*, R...> {
  static constexpr bool possible = true;
  using element                  = T;
  using function                 = TavStatus(const T*, V, T*, R...);
  static TavStatus call(function* f, const T* from, T* to, V val, T*, R... rest) { return f(from, val, to, rest...); }
};
template <class S, class T, class... R>
requires writable<T>
struct apart<const S*, T*, R...> {
  static constexpr bool possible = true;
  using element                  = T;
  using function                 = TavStatus(const S*, const T*, T*, R...);
  static TavStatus call(function* f, const T* from, T* to, const S* first, T*, R... rest) {
    return f(first, from, to, rest...);
  }
};

}  // namespace fuzz
