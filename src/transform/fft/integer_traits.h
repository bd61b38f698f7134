// What distinguishes the records of integers: a row each.
#pragma once
#include "frame/bind.h"
#include "transform/fft/engine.h"
#include "transform/fft/integer_fixed_point.h"

namespace tav::TAV_VARIANT::fft {

enum class point_layout { interleaved, split, real };

template <auto* Function> struct pick { static constexpr auto function = Function; };

// The nested record of floats, by the exports that serve it. The transforms are those in place; real ones
// have the spectrum in Perm order.
template <class Part, class Record, auto* GetSize, auto* Init, auto* GetBufSize, auto* Forward, auto* Inverse>
struct nested_record {
  using part                         = Part;
  using record                       = Record;
  static constexpr auto get_size     = GetSize;
  static constexpr auto init         = Init;
  static constexpr auto get_buf_size = GetBufSize;
  template <direction Towards>
  static constexpr auto run = std::conditional_t<Towards == direction::forward, pick<Forward>, pick<Inverse>>::function;
};

using nested_c32fc = nested_record<Tav32f, FftContext_C_32fc, &::tavsFFTGetSize_C_32fc, &::tavsFFTInit_C_32fc,
                                   &::tavsFFTGetBufSize_C_32fc, &::tavsFFTFwd_CToC_32fc_I, &::tavsFFTInv_CToC_32fc_I>;
using nested_c32f  = nested_record<Tav32f, FftContext_C_32f, &::tavsFFTGetSize_C_32f, &::tavsFFTInit_C_32f,
                                  &::tavsFFTGetBufSize_C_32f, &::tavsFFTFwd_CToC_32f_I, &::tavsFFTInv_CToC_32f_I>;
using nested_c64fc = nested_record<Tav64f, FftContext_C_64fc, &::tavsFFTGetSize_C_64fc, &::tavsFFTInit_C_64fc,
                                   &::tavsFFTGetBufSize_C_64fc, &::tavsFFTFwd_CToC_64fc_I, &::tavsFFTInv_CToC_64fc_I>;
using nested_c64f  = nested_record<Tav64f, FftContext_C_64f, &::tavsFFTGetSize_C_64f, &::tavsFFTInit_C_64f,
                                  &::tavsFFTGetBufSize_C_64f, &::tavsFFTFwd_CToC_64f_I, &::tavsFFTInv_CToC_64f_I>;
using nested_r32f  = nested_record<Tav32f, FftContext_R_32f, &::tavsFFTGetSize_R_32f, &::tavsFFTInit_R_32f,
                                  &::tavsFFTGetBufSize_R_32f, &::tavsFFTFwd_RToPerm_32f_I, &::tavsFFTInv_PermToR_32f_I>;
using nested_r64f  = nested_record<Tav64f, FftContext_R_64f, &::tavsFFTGetSize_R_64f, &::tavsFFTInit_R_64f,
                                  &::tavsFFTGetBufSize_R_64f, &::tavsFFTFwd_RToPerm_64f_I, &::tavsFFTInv_PermToR_64f_I>;

template <record_id Id, class Nested, point_layout Points, bool HasFixedPoint> struct integer_row {
  static constexpr auto id              = Id;
  using nested                          = Nested;
  static constexpr auto points          = Points;
  static constexpr bool has_fixed_point = HasFixedPoint;
};

template <class Record> struct integer_traits;

template <>
struct integer_traits<FftContext_C_16sc>
    : integer_row<record_id::fft_c_16sc, nested_c32fc, point_layout::interleaved, true> {};
template <>
struct integer_traits<FftContext_C_16s> : integer_row<record_id::fft_c_16s, nested_c32f, point_layout::split, true> {};
template <>
struct integer_traits<FftContext_C_32sc>
    : integer_row<record_id::fft_c_32sc, nested_c64fc, point_layout::interleaved, false> {};
template <>
struct integer_traits<FftContext_C_32s> : integer_row<record_id::fft_c_32s, nested_c64f, point_layout::split, false> {};
template <>
struct integer_traits<FftContext_R_16s> : integer_row<record_id::fft_r_16s, nested_r32f, point_layout::real, true> {};
template <>
struct integer_traits<FftContext_R_32s> : integer_row<record_id::fft_r_32s, nested_r64f, point_layout::real, false> {};
template <>
struct integer_traits<FftContext_R_16s32s>
    : integer_row<record_id::fft_r_16s32s, nested_r32f, point_layout::real, false> {};

template <class Record> using nested_of                   = typename integer_traits<Record>::nested;
template <class Record> using float_of                    = typename nested_of<Record>::part;
template <class Record> inline constexpr bool real_points = integer_traits<Record>::points == point_layout::real;

template <class Record> const integer_record& opened_integer(const Record* ctx) {
  return *reinterpret_cast<const integer_record*>(ctx);
}

// Whether a transform is done in fixed point: a single point always, short ones unless the hint is against it.
template <class Record> bool in_fixed_point(int order, int hint) {
  return integer_traits<Record>::has_fixed_point
         && (order == 0 || (order <= shared::fixed_point_to && unsigned(hint) <= 1));
}

// The head of the work area: the points as floats, the spectrum of a real transform with its two extra slots. Behind it
// lies the nested transform's own area.
template <class Record> size_t float_bytes(size_t n) {
  return (real_points<Record> ? n + 2 : 2 * n) * sizeof(float_of<Record>);
}

// The work area of fixed point. Split points are put together behind those of 32 bits.
template <class Record> size_t fixed_point_bytes(size_t n) {
  if (real_points<Record>) return (n + 2) * sizeof(Tav32s);
  return n * (2 * sizeof(Tav32s) + (integer_traits<Record>::points == point_layout::split ? 2 * sizeof(Tav16s) : 0));
}

}  // namespace tav::TAV_VARIANT::fft
