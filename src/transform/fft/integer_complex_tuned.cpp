// The records of integers and their complex transforms: rows.
#include "transform/fft/integer_complex.h"
#include "transform/fft/integer_setup.h"

namespace tav::TAV_VARIANT {

using fft::direction;

TAV_BIND(FFTGetSize_C_16sc, &fft::integer_get_size<FftContext_C_16sc>)
TAV_BIND(FFTGetSize_C_16s, &fft::integer_get_size<FftContext_C_16s>)
TAV_BIND(FFTGetSize_C_32sc, &fft::integer_get_size<FftContext_C_32sc>)
TAV_BIND(FFTGetSize_C_32s, &fft::integer_get_size<FftContext_C_32s>)

TAV_BIND(FFTInit_C_16sc, &fft::integer_init<FftContext_C_16sc>)
TAV_BIND(FFTInit_C_16s, &fft::integer_init<FftContext_C_16s>)
TAV_BIND(FFTInit_C_32sc, &fft::integer_init<FftContext_C_32sc>)
TAV_BIND(FFTInit_C_32s, &fft::integer_init<FftContext_C_32s>)

TAV_BIND(FFTInitAlloc_C_16sc, &fft::integer_init_alloc<FftContext_C_16sc>)
TAV_BIND(FFTInitAlloc_C_16s, &fft::integer_init_alloc<FftContext_C_16s>)
TAV_BIND(FFTInitAlloc_C_32sc, &fft::integer_init_alloc<FftContext_C_32sc>)
TAV_BIND(FFTInitAlloc_C_32s, &fft::integer_init_alloc<FftContext_C_32s>)

TAV_BIND(FFTFree_C_16sc, &fft::integer_free<FftContext_C_16sc>)
TAV_BIND(FFTFree_C_16s, &fft::integer_free<FftContext_C_16s>)
TAV_BIND(FFTFree_C_32sc, &fft::integer_free<FftContext_C_32sc>)
TAV_BIND(FFTFree_C_32s, &fft::integer_free<FftContext_C_32s>)

TAV_BIND(FFTFwd_CToC_16sc_Sfs, &fft::integer_interleaved<direction::forward, Tav16sc, FftContext_C_16sc>)
TAV_BIND(FFTInv_CToC_16sc_Sfs, &fft::integer_interleaved<direction::inverse, Tav16sc, FftContext_C_16sc>)
TAV_BIND(FFTFwd_CToC_16sc_ISfs, &fft::integer_interleaved_in_place<direction::forward, Tav16sc, FftContext_C_16sc>)
TAV_BIND(FFTInv_CToC_16sc_ISfs, &fft::integer_interleaved_in_place<direction::inverse, Tav16sc, FftContext_C_16sc>)
TAV_BIND(FFTFwd_CToC_32sc_Sfs, &fft::integer_interleaved<direction::forward, Tav32sc, FftContext_C_32sc>)
TAV_BIND(FFTInv_CToC_32sc_Sfs, &fft::integer_interleaved<direction::inverse, Tav32sc, FftContext_C_32sc>)
TAV_BIND(FFTFwd_CToC_32sc_ISfs, &fft::integer_interleaved_in_place<direction::forward, Tav32sc, FftContext_C_32sc>)
TAV_BIND(FFTInv_CToC_32sc_ISfs, &fft::integer_interleaved_in_place<direction::inverse, Tav32sc, FftContext_C_32sc>)

TAV_BIND(FFTFwd_CToC_16s_Sfs, &fft::integer_split<direction::forward, Tav16s, FftContext_C_16s>)
TAV_BIND(FFTInv_CToC_16s_Sfs, &fft::integer_split<direction::inverse, Tav16s, FftContext_C_16s>)
TAV_BIND(FFTFwd_CToC_16s_ISfs, &fft::integer_split_in_place<direction::forward, Tav16s, FftContext_C_16s>)
TAV_BIND(FFTInv_CToC_16s_ISfs, &fft::integer_split_in_place<direction::inverse, Tav16s, FftContext_C_16s>)
TAV_BIND(FFTFwd_CToC_32s_Sfs, &fft::integer_split<direction::forward, Tav32s, FftContext_C_32s>)
TAV_BIND(FFTInv_CToC_32s_Sfs, &fft::integer_split<direction::inverse, Tav32s, FftContext_C_32s>)
TAV_BIND(FFTFwd_CToC_32s_ISfs, &fft::integer_split_in_place<direction::forward, Tav32s, FftContext_C_32s>)
TAV_BIND(FFTInv_CToC_32s_ISfs, &fft::integer_split_in_place<direction::inverse, Tav32s, FftContext_C_32s>)

}  // namespace tav::TAV_VARIANT
