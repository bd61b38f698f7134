// The sizes of a complex transform's record by order, and where its plan changes. The numbers are a promise to callers
// who bring their own memory: they are larger than what the tables take, and differ between the variants.
#pragma once
#include "frame/registers.h"
#include "frame/tuning.h"

namespace tav {

struct fft_sizes {
  int spec, init, work;
};

}  // namespace tav

namespace tav::TAV_VARIANT::fft {

// Up to these orders the complex and the real transforms are straight-line code without tables, and their records have
// no room for any.
inline constexpr int                    direct_to      = 5;
template <class T> inline constexpr int real_direct_to = sizeof(T) == 4 ? 4 : 5;

// Up to these, kernels of one order each do without the record's tables. In doubles two passes over pairs come first,
// shorter ones of split data, whose results take two stores each there.
template <class T> inline constexpr int pairs_kernels_to = sizeof(T) == 4 ? direct_to : 8;
template <class T> inline constexpr int split_kernels_to = sizeof(T) == 4 ? direct_to : 6;

// Up to this one interleaved points of some precisions have code for their very length.
inline constexpr int                     fixed_to  = 12;
template <class T> inline constexpr bool has_fixed = sizeof(T) == 4;

template <class T> inline constexpr const fft_plan& plan_of = sizeof(T) == 4 ? tune.fft_single : tune.fft_double;

inline constexpr size_t whole_lines(size_t bytes) { return bytes & ~size_t(63); }

inline constexpr size_t record_room = 192;  // a record's head and the way to a 64-byte boundary
inline constexpr size_t slack       = 64;   // of a work area or a set-up area

// The parts of a record that its length decides: tables and work area, without head and slack.
struct fft_share {
  size_t tables, work;
};

inline constexpr size_t index_bytes(size_t n) { return whole_lines(n + 67); }

template <class T> inline constexpr size_t pair_bytes = 2 * sizeof(T);

// The twiddles of a transform that is not cut, and its work area.
template <class T> constexpr fft_share uncut_share(int order) {
  const size_t bytes = pair_bytes<T> << order;
  return {whole_lines(bytes + 63 + pair_bytes<T>), plan_of<T>.in_place ? 0 : whole_lines(bytes + 63)};
}

template <class A> constexpr A larger(A a, A b) { return a < b ? b : a; }

// Long transforms are cut, if need be several times; each cut has tables of its own.
template <class T> constexpr fft_share cut_share(int order) {
  const fft_plan& plan = plan_of<T>;
  if (order < plan.cut_from) return uncut_share<T>(order);
  const fft_cut& cut   = plan.cut_of(order);
  fft_share      share = cut_share<T>(order - cut.outer);
  share.tables += size_t(plan.cut_bytes) << order;
  share.work = larger(share.work, pair_bytes<T> << cut.tile);
  return share;
}

template <class T> constexpr fft_share complex_share(int order) {
  const fft_plan& plan  = plan_of<T>;
  const size_t    n     = size_t(1) << order;
  fft_share       share = cut_share<T>(order);
  if (order < plan.tiles_from) return {share.tables + index_bytes(n), share.work};
  return {share.tables + n / plan.points_per_tile_byte + plan.tile_table, larger(share.work, plan.tile_work)};
}

// The set-up area holds a quarter wave; short transforms use the constant one.
template <class T> constexpr int init_size(int order) {
  return order <= 10 ? 0 : int(whole_lines((sizeof(T) / 4 << order) + 63 + sizeof(T)) + slack);
}

template <class T> constexpr fft_sizes complex_sizes(int order) {
  if (order <= direct_to) return {sizeof(T) == 4 ? 152 : 160, 0, 0};
  const fft_share share = complex_share<T>(order);
  return {int(share.tables + record_room), init_size<T>(order), share.work == 0 ? 0 : int(share.work + slack)};
}

// The tables that turn the spectrum of N/2 complex points into that of N real ones, and back; long transforms have
// them in two factors. With room for the head.
template <class T> constexpr size_t recombination_bytes(int order) {
  const size_t n     = size_t(1) << order,
               bytes = order >= plan_of<T>.factors_from ? n / (1024 / pair_bytes<T> * 2) + 16510 : sizeof(T) * n + 126;
  return (bytes & ~size_t(127)) + record_room;
}

// Of a real transform of 2^order points, `order` above real_direct_to.
template <class T> constexpr fft_share real_share(int order) {
  const fft_share half = order - 1 <= direct_to ? fft_share{0, 0} : complex_share<T>(order - 1);
  return {half.tables + recombination_bytes<T>(order), half.work};
}

template <class T> constexpr fft_sizes real_sizes(int order) {
  if (order <= real_direct_to<T>) return {sizeof(T) == 4 ? 152 : 160, 0, 0};
  const fft_share share = real_share<T>(order);
  return {int(share.tables), init_size<T>(order), share.work == 0 ? 0 : int(share.work + slack)};
}

}  // namespace tav::TAV_VARIANT::fft
