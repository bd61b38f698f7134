// A variant table whose rows note how a call ended before they hand its result on. They call the bodies as the least
// careful caller does, and look at the floating-point modes that are left.
#include "frame/variant_table.h"
#include "fuzz/input.h"
#include "fuzz/watch.h"
#include "harness/call.h"

namespace fuzz {
namespace {

enum class position {
#define TAV_SHARED(name) name,
#define TAV_SPLIT(name) name,
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
};

template <class R, class... A> constexpr bool gives_status(R (*)(A...)) { return std::is_same_v<R, TavStatus>; }
template <class R, class... A> void (*address(R (*function)(A...)))() { return reinterpret_cast<void (*)()>(function); }

export_notes all[] = {
#define TAV_SHARED(name) {#name, address(&::tavs##name), &typeid(&::tavs##name), gives_status(&::tavs##name), false},
#define TAV_SPLIT(name) {#name, address(&::tavs##name), &typeid(&::tavs##name), gives_status(&::tavs##name), true},
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
};

template <class R> void note(position which, const R& result) {
  export_notes& n = all[int(which)];
  bool          done;
  if constexpr (std::is_pointer_v<R>)
    done = result != nullptr;
  else
    done = result >= 0;
  if constexpr (std::is_same_v<R, TavStatus>)
    if (result > 27 || result < -300) fail(n.name, "a status that does not exist");
  ++(done ? n.done[n.is_split ? tav::tav_variant_index : 0] : n.refused);
}

template <position Which, auto* Body> struct watched;
template <position Which, class R, class... A, R (*Body)(A...)> struct watched<Which, Body> {
  static R call(A... args) {
    const auto before = test::float_state::now();
    if constexpr (std::is_void_v<R>) {
      test::plain_call<R, A...>(Body, args...);
      ++all[int(Which)].done[0];
    } else {
      const R result = test::plain_call<R, A...>(Body, args...);
      note(Which, result);
      if (!(test::float_state::now() == before)) fail(all[int(Which)].name, "another floating-point mode is left");
      return result;
    }
  }
};

}  // namespace

export_notes* notes_begin() { return std::begin(all); }
export_notes* notes_end() { return std::end(all); }

export_notes* notes_named(const char* name) {  // which the list is sorted by
  const auto          before = [](const export_notes& e, const char* wanted) { return strcmp(e.name, wanted) < 0; };
  export_notes* const n      = std::lower_bound(all, notes_end(), name, before);
  return n == notes_end() || strcmp(n->name, name) != 0 ? nullptr : n;
}

int count_gaps(bool tell) {
  int        gaps  = 0;
  const auto count = [&](const export_notes& n, const char* what) {
    ++gaps;
    if (tell) fprintf(stderr, "%s was never %s\n", n.name, what);
  };
  for (const export_notes& n : all) {
    if (n.done[0] == 0) count(n, n.is_split ? "done in v8" : "done");
    if (n.is_split && n.done[1] == 0) count(n, "done in s8");
    if (n.has_status && n.refused == 0) count(n, "refused");
  }
  return gaps;
}

}  // namespace fuzz

namespace tav {

constinit const variant_table tav_variant_table = {
#define TAV_WATCHED(build, name) &fuzz::watched<fuzz::position::name, &build::entry<&::tavs##name>::call>::call
#define TAV_SHARED(name) {TAV_WATCHED(shared, name), TAV_WATCHED(shared, name)},
#define TAV_SPLIT(name) {TAV_WATCHED(v8, name), TAV_WATCHED(s8, name)},
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
#undef TAV_WATCHED
};

}  // namespace tav
