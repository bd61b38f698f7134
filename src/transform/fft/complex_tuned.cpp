// The complex transforms in floats: rows.
#include "transform/fft/complex.h"

namespace tav::TAV_VARIANT {

using fft::direction;

TAV_BIND(FFTGetSize_C_32fc, &fft::get_size<FftContext_C_32fc>)
TAV_BIND(FFTGetSize_C_32f, &fft::get_size<FftContext_C_32f>)
TAV_BIND(FFTGetSize_C_64fc, &fft::get_size<FftContext_C_64fc>)
TAV_BIND(FFTGetSize_C_64f, &fft::get_size<FftContext_C_64f>)

TAV_BIND(FFTInit_C_32fc, &fft::init<FftContext_C_32fc>)
TAV_BIND(FFTInit_C_32f, &fft::init<FftContext_C_32f>)
TAV_BIND(FFTInit_C_64fc, &fft::init<FftContext_C_64fc>)
TAV_BIND(FFTInit_C_64f, &fft::init<FftContext_C_64f>)

TAV_BIND(FFTInitAlloc_C_32fc, &fft::init_alloc<FftContext_C_32fc>)
TAV_BIND(FFTInitAlloc_C_32f, &fft::init_alloc<FftContext_C_32f>)
TAV_BIND(FFTInitAlloc_C_64fc, &fft::init_alloc<FftContext_C_64fc>)
TAV_BIND(FFTInitAlloc_C_64f, &fft::init_alloc<FftContext_C_64f>)

TAV_BIND(FFTFree_C_32fc, &fft::free_record<FftContext_C_32fc>)
TAV_BIND(FFTFree_C_32f, &fft::free_record<FftContext_C_32f>)
TAV_BIND(FFTFree_C_64fc, &fft::free_record<FftContext_C_64fc>)
TAV_BIND(FFTFree_C_64f, &fft::free_record<FftContext_C_64f>)

TAV_BIND(FFTFwd_CToC_32fc, &fft::interleaved<direction::forward, Tav32fc, FftContext_C_32fc>)
TAV_BIND(FFTInv_CToC_32fc, &fft::interleaved<direction::inverse, Tav32fc, FftContext_C_32fc>)
TAV_BIND(FFTFwd_CToC_32fc_I, &fft::interleaved_in_place<direction::forward, Tav32fc, FftContext_C_32fc>)
TAV_BIND(FFTInv_CToC_32fc_I, &fft::interleaved_in_place<direction::inverse, Tav32fc, FftContext_C_32fc>)
TAV_BIND(FFTFwd_CToC_64fc, &fft::interleaved<direction::forward, Tav64fc, FftContext_C_64fc>)
TAV_BIND(FFTInv_CToC_64fc, &fft::interleaved<direction::inverse, Tav64fc, FftContext_C_64fc>)
TAV_BIND(FFTFwd_CToC_64fc_I, &fft::interleaved_in_place<direction::forward, Tav64fc, FftContext_C_64fc>)
TAV_BIND(FFTInv_CToC_64fc_I, &fft::interleaved_in_place<direction::inverse, Tav64fc, FftContext_C_64fc>)

TAV_BIND(FFTFwd_CToC_32f, &fft::in_parts<direction::forward, Tav32f, FftContext_C_32f>)
TAV_BIND(FFTInv_CToC_32f, &fft::in_parts<direction::inverse, Tav32f, FftContext_C_32f>)
TAV_BIND(FFTFwd_CToC_32f_I, &fft::in_parts_in_place<direction::forward, Tav32f, FftContext_C_32f>)
TAV_BIND(FFTInv_CToC_32f_I, &fft::in_parts_in_place<direction::inverse, Tav32f, FftContext_C_32f>)
TAV_BIND(FFTFwd_CToC_64f, &fft::in_parts<direction::forward, Tav64f, FftContext_C_64f>)
TAV_BIND(FFTInv_CToC_64f, &fft::in_parts<direction::inverse, Tav64f, FftContext_C_64f>)
TAV_BIND(FFTFwd_CToC_64f_I, &fft::in_parts_in_place<direction::forward, Tav64f, FftContext_C_64f>)
TAV_BIND(FFTInv_CToC_64f_I, &fft::in_parts_in_place<direction::inverse, Tav64f, FftContext_C_64f>)

}  // namespace tav::TAV_VARIANT
