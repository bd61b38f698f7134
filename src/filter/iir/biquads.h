// Cascades of biquad sections, as structures of a filter: in transposed direct form 2 (biquads) and in direct form 1
// (biquads_df1). What they do is in biquad_run.cpp, once for each type of arithmetic.
#pragma once
#include "filter/iir/biquad_rows.h"

namespace tav::TAV_VARIANT::iir {

inline constexpr size_t transposed_entries = 2, direct_entries = 4;  // of a section's delay line

// The sections of a record, as the kernels see them.
template <class A> struct cascade {
  A*               taps;  // normalised, section_taps a section
  section_rows<A>* rows;  // one a section
  A*               delay;
  int              sections;
};

template <class A> cascade<A> cascade_of(iir_record<A>& r) {
  return {r.taps, reinterpret_cast<section_rows<A>*>(r.look_ahead), r.delay, r.sections};
}

// n samples; dst may be src. Four at a time, if there are more than two; or one by one.
template <class A> void run_cascade(const cascade<A>& c, const A* src, A* dst, size_t n);
template <class A> void run_one_by_one(const cascade<A>& c, const A* src, A* dst, size_t n);
template <class A> void run_cascade_df1(const cascade<A>& c, const A* src, A* dst, size_t n);
template <class A> A    run_sample(const cascade<A>& c, A x);

// Two channels at once. Their outputs are those that each has by itself, bit for bit.
template <class A, int Channels> struct channels {
  const cascade<A>* of[Channels];
  const A*          src[Channels];
  A*                dst[Channels];
};
void run_two_cascades(const channels<Tav32f, 2>& data, size_t n);  // more than two samples
void run_two_cascades_df1(const channels<Tav32f, 2>& data, size_t n);

template <class A> void make_section(const cascade<A>& c, int section, const A* normalised);

// b0, b1, b2, a0, a1, a2 a section, in order. Those before one that cannot be set have been changed then.
inline constexpr int         section_taps_given = 6;
template <class A> TavStatus set_sections(const cascade<A>& c, const A* taps);

#define TAV_IIR_CASCADES(declare, A)                                                  \
  declare template void      run_cascade(const cascade<A>&, const A*, A*, size_t);    \
  declare template void      run_one_by_one(const cascade<A>&, const A*, A*, size_t); \
  declare template A         run_sample(const cascade<A>&, A);                        \
  declare template void      make_section(const cascade<A>&, int, const A*);          \
  declare template TavStatus set_sections(const cascade<A>&, const A*);
TAV_IIR_CASCADES(extern, Tav32f)
TAV_IIR_CASCADES(extern, Tav32fc)
TAV_IIR_CASCADES(extern, Tav64f)
TAV_IIR_CASCADES(extern, Tav64fc)
extern template void run_cascade_df1(const cascade<Tav32f>&, const Tav32f*, Tav32f*, size_t);
extern template void run_cascade_df1(const cascade<Tav64f>&, const Tav64f*, Tav64f*, size_t);

// Bytes of a state beside its taps, delay line and blocks: those of each section, of which the rows take most or part,
// and those at the end, for alignment and more. The sums are a promise.
struct cascade_room {
  unsigned section, end;
};

template <class A> constexpr cascade_room room_of(bool mixed) {
  if (std::is_same_v<A, Tav32f>) return mixed ? cascade_room{160, 72} : cascade_room{288, 96};
  if (std::is_same_v<A, Tav32fc>) return {1184, 80};
  if (std::is_same_v<A, Tav64f>) return {256, 0};
  return {1024, 32};
}

// What all cascades share as structures.
struct any_cascade {
  template <class A> static constexpr uint64_t slack = 0;  // lay_out() counts it

  static uint64_t                     tap_count(uint64_t n) { return section_taps_given * n; }
  template <class A> static uint64_t  taps_of(const iir_record<A>& r) { return tap_count(unsigned(r.sections)); }
  template <class A> static TavStatus set_taps(iir_record<A>& r, const A* taps) {
    return set_sections(cascade_of(r), taps);
  }

 protected:
  template <class A> static void lay_out_sections(iir_record<A>& r, iir_block& block, uint64_t n, size_t entries) {
    constexpr unsigned multiple = std::is_same_v<A, Tav32fc> ? 32 : 16;
    r.sections                  = int32_t(n);
    r.delay_len                 = int32_t(n * entries);
    r.taps                      = block.take<A>(n * section_taps, multiple);
    r.delay                     = block.take<A>(n * entries, multiple);
  }
  template <class A> static void lay_out_rows(iir_record<A>& r, iir_block& block, uint64_t bytes) {
    r.look_ahead = reinterpret_cast<A*>(block.take<Tav8u>(bytes, 8));
  }
};

struct biquads : any_cascade {
  template <class State> static constexpr record_id id = form<State>::biquads;

  template <class A> static void lay_out(iir_record<A>& r, iir_block& block, uint64_t n, bool mixed) {
    constexpr auto     room  = room_of<A>;
    constexpr unsigned least = sizeof(section_rows<A>) + iir_alignment - 1;
    static_assert(room(true).section + room(true).end >= least && room(false).section + room(false).end >= least);
    lay_out_sections(r, block, n, transposed_entries);
    r.scratch = block.take<A>(block_samples);
    if (mixed) r.history = block.take<A>(block_samples);
    lay_out_rows(r, block, n * room(mixed).section + room(mixed).end);
  }

  // A short block is not worth setting the scheme up.
  template <class A> static bool runs_fours(const iir_record<A>& r, size_t n) {
    constexpr size_t least = 2, mixed_least_per_section = 4;
    return n > (r.history ? mixed_least_per_section * unsigned(r.sections) : least);
  }
  template <class A> static void run(iir_record<A>& r, const A* src, A* dst, size_t n) {
    if (runs_fours(r, n))
      run_cascade(cascade_of(r), src, dst, n);
    else
      run_one_by_one(cascade_of(r), src, dst, n);
  }
  template <class A> static A one(iir_record<A>& r, A x) { return run_sample(cascade_of(r), x); }

  // The two outputs that the scheme begins with, in real singles: cut off, as no others are.
  template <class State> static size_t cut_off(const iir_record<arithmetic_of<State>>& r, size_t n) {
    return std::is_same_v<arithmetic_of<State>, Tav32f> && runs_fours(r, n) ? 2 : 0;
  }
};

struct biquads_df1 : any_cascade {
  template <class State> static constexpr record_id id = form<State>::df1;

  template <class A> static void lay_out(iir_record<A>& r, iir_block& block, uint64_t n, bool mixed) {
    lay_out_sections(r, block, n, direct_entries);
    if (mixed) {
      constexpr unsigned spare = 48;  // bytes a section
      r.history                = block.take<A>(block_samples);
      r.scratch                = block.take<A>(block_samples);
      lay_out_rows(r, block, n * (sizeof(section_rows<A>) + spare));
    } else {
      lay_out_rows(r, block, n * sizeof(section_rows<A>) + iir_alignment);
    }
  }
  template <class A> static void run(iir_record<A>& r, const A* src, A* dst, size_t n) {
    run_cascade_df1(cascade_of(r), src, dst, n);
  }
  template <class A> static A          one(iir_record<A>&, A x) { return x; }  // no call comes here
  template <class State> static size_t cut_off(const iir_record<arithmetic_of<State>>&, size_t) { return 0; }
};

}  // namespace tav::TAV_VARIANT::iir
