// The types of FIR state that compute in floats, and by what they compute: which transforms long filters use, and from
// how many taps and samples on.
#pragma once
#include "filter/fir/record.h"
#include "filter/fir/traits.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT::fir {

template <class Tap, class Data, record_id Single, record_id Multi, record_id... Streams>
struct float_traits : state_traits<Tap, Data, Single, Multi, Streams...> {
  using record = float_record<Tap>;
};

template <>
struct traits<FIRState_32f> : float_traits<Tav32f, Tav32f, record_id::fir_sr_32f, record_id::fir_mr_32f,
                                           record_id::fir_sr_stream_32f, record_id::fir_mr_stream_32f> {};
template <>
struct traits<FIRState32f_16s> : float_traits<Tav32f, Tav16s, record_id::fir_sr_32f_16s, record_id::fir_mr_32f_16s> {};
template <>
struct traits<FIRState_32fc> : float_traits<Tav32fc, Tav32fc, record_id::fir_sr_32fc, record_id::fir_mr_32fc> {};
template <>
struct traits<FIRState32fc_16sc>
    : float_traits<Tav32fc, Tav16sc, record_id::fir_sr_32fc_16sc, record_id::fir_mr_32fc_16sc> {};
template <> struct traits<FIRState_64f> : float_traits<Tav64f, Tav64f, record_id::fir_sr_64f, record_id::fir_mr_64f> {};
template <>
struct traits<FIRState64f_32f> : float_traits<Tav64f, Tav32f, record_id::fir_sr_64f_32f, record_id::fir_mr_64f_32f> {};
template <>
struct traits<FIRState64f_32s> : float_traits<Tav64f, Tav32s, record_id::fir_sr_64f_32s, record_id::fir_mr_64f_32s> {};
template <>
struct traits<FIRState64f_16s> : float_traits<Tav64f, Tav16s, record_id::fir_sr_64f_16s, record_id::fir_mr_64f_16s> {};
template <>
struct traits<FIRState_64fc> : float_traits<Tav64fc, Tav64fc, record_id::fir_sr_64fc, record_id::fir_mr_64fc> {};
template <>
struct traits<FIRState64fc_32fc>
    : float_traits<Tav64fc, Tav32fc, record_id::fir_sr_64fc_32fc, record_id::fir_mr_64fc_32fc> {};
template <>
struct traits<FIRState64fc_32sc>
    : float_traits<Tav64fc, Tav32sc, record_id::fir_sr_64fc_32sc, record_id::fir_mr_64fc_32sc> {};
template <>
struct traits<FIRState64fc_16sc>
    : float_traits<Tav64fc, Tav16sc, record_id::fir_sr_64fc_16sc, record_id::fir_mr_64fc_16sc> {};

// The transforms are those of variant 1 in both variants: the sizes of the records contain theirs, and have one value.
template <auto* Export> inline constexpr auto variant_1 = &s8::entry<Export>::call;

template <class T> struct transform;

template <> struct transform<Tav32f> {
  using context                   = FftContext_R_32f;
  static constexpr auto get_size  = variant_1<&::tavsFFTGetSize_R_32f>;
  static constexpr auto init      = variant_1<&::tavsFFTInit_R_32f>;
  static constexpr auto forward   = variant_1<&::tavsFFTFwd_RToPerm_32f>;
  static constexpr auto inverse   = variant_1<&::tavsFFTInv_PermToR_32f>;
  static constexpr int  taps_from = 64, samples_from = 512;
};
template <> struct transform<Tav64f> {
  using context                   = FftContext_R_64f;
  static constexpr auto get_size  = variant_1<&::tavsFFTGetSize_R_64f>;
  static constexpr auto init      = variant_1<&::tavsFFTInit_R_64f>;
  static constexpr auto forward   = variant_1<&::tavsFFTFwd_RToPerm_64f>;
  static constexpr auto inverse   = variant_1<&::tavsFFTInv_PermToR_64f>;
  static constexpr int  taps_from = 64, samples_from = 512;
};
template <> struct transform<Tav32fc> {
  using context                   = FftContext_C_32fc;
  static constexpr auto get_size  = variant_1<&::tavsFFTGetSize_C_32fc>;
  static constexpr auto init      = variant_1<&::tavsFFTInit_C_32fc>;
  static constexpr auto forward   = variant_1<&::tavsFFTFwd_CToC_32fc>;
  static constexpr auto inverse   = variant_1<&::tavsFFTInv_CToC_32fc>;
  static constexpr int  taps_from = 16, samples_from = 256;
};
template <> struct transform<Tav64fc> {
  using context                   = FftContext_C_64fc;
  static constexpr auto get_size  = variant_1<&::tavsFFTGetSize_C_64fc>;
  static constexpr auto init      = variant_1<&::tavsFFTInit_C_64fc>;
  static constexpr auto forward   = variant_1<&::tavsFFTFwd_CToC_64fc>;
  static constexpr auto inverse   = variant_1<&::tavsFFTInv_CToC_64fc>;
  static constexpr int  taps_from = 32, samples_from = 256;
};

}  // namespace tav::TAV_VARIANT::fir
