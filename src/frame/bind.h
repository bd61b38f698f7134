// TAV_BIND(name, function): makes `function` the implementation of the export tavs<name> in this build.
//
// A function of another type than the header, or a row in the wrong build, is a compile error that names the
// export. An export without a row is a link error.
#pragma once
#include <type_traits>

#include "frame/entry.h"

#define TAV_IS_SHARED_shared 1
#define TAV_IS_SHARED_v8 0
#define TAV_IS_SHARED_s8 0
#define TAV_JOIN_(a, b) a##b
#define TAV_JOIN(a, b) TAV_JOIN_(a, b)

namespace tav::TAV_VARIANT {

inline constexpr bool is_shared_build = TAV_JOIN(TAV_IS_SHARED_, TAV_VARIANT);

template <auto* Export> struct body;

template <class R, class... A, R (*Export)(A...)> R entry<Export>::call(A... a) { return body<Export>::function(a...); }

// Each is instantiated where its row stands, and nowhere else: other sources know no body.
#define TAV_SHARED(name) extern template struct entry<&::tavs##name>;
#define TAV_SPLIT(name) TAV_SHARED(name)
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT

// Calls another export's implementation: the shared one, or the one of this build. A shared body takes v8's.
template <auto* Export, class... A> auto forward(A... a) {
  if constexpr (!is_split<Export>)
    return shared::entry<Export>::call(a...);
  else if constexpr (is_shared_build)
    return v8::entry<Export>::call(a...);
  else
    return entry<Export>::call(a...);
}

}  // namespace tav::TAV_VARIANT

#define TAV_BIND(name, ...)                                                                         \
  template <> struct body<&::tavs##name> {                                                          \
    static constexpr auto function = __VA_ARGS__;                                                   \
    static_assert(std::is_same_v<decltype(&::tavs##name), std::remove_const_t<decltype(function)>>, \
                  "tavs" #name ": this function has another signature than the header");            \
    static_assert(is_split<&::tavs##name> != is_shared_build,                                       \
                  "tavs" #name ": exports.def puts it in the other build");                         \
  };                                                                                                \
  template struct entry<&::tavs##name>;
