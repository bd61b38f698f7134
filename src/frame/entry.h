// One implementation per export and build: `entry<&tavsName>::call`, in the namespace of the build.
// The signature comes from the public header; nothing here repeats it.
#pragma once
#include "tavs.h"

#define TAV_DECLARE_ENTRY(build)                                                                                 \
  namespace tav::build {                                                                                         \
  template <auto* Export> struct entry;                                                                          \
  template <class R, class... A, R (*Export)(A...)> struct __attribute__((visibility("hidden"))) entry<Export> { \
    static R call(A...);                                                                                         \
  };                                                                                                             \
  }

TAV_DECLARE_ENTRY(shared)
TAV_DECLARE_ENTRY(v8)
TAV_DECLARE_ENTRY(s8)
#undef TAV_DECLARE_ENTRY

namespace tav {

template <auto* Export> inline constexpr bool is_split = false;
#define TAV_SHARED(name)
#define TAV_SPLIT(name) template <> inline constexpr bool is_split<&::tavs##name> = true;
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT

}  // namespace tav
