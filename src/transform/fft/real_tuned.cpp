// The real transforms in floats: formats, checks, rows.
#include "transform/fft/real_calls.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FFTGetSize_R_32f, &fft::get_size<FftContext_R_32f>)
TAV_BIND(FFTGetSize_R_64f, &fft::get_size<FftContext_R_64f>)
TAV_BIND(FFTInit_R_32f, &fft::init<FftContext_R_32f>)
TAV_BIND(FFTInit_R_64f, &fft::init<FftContext_R_64f>)
TAV_BIND(FFTInitAlloc_R_32f, &fft::init_alloc<FftContext_R_32f>)
TAV_BIND(FFTInitAlloc_R_64f, &fft::init_alloc<FftContext_R_64f>)
TAV_BIND(FFTFree_R_32f, &fft::free_record<FftContext_R_32f>)
TAV_BIND(FFTFree_R_64f, &fft::free_record<FftContext_R_64f>)

TAV_BIND(FFTFwd_RToPerm_32f, &fft::forward_to<fft::perm, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToPack_32f, &fft::forward_to<fft::pack, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToCCS_32f, &fft::forward_to<fft::ccs, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToPerm_64f, &fft::forward_to<fft::perm, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTFwd_RToPack_64f, &fft::forward_to<fft::pack, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTFwd_RToCCS_64f, &fft::forward_to<fft::ccs, Tav64f, FftContext_R_64f>)

TAV_BIND(FFTFwd_RToPerm_32f_I, &fft::forward_in_place_to<fft::perm, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToPack_32f_I, &fft::forward_in_place_to<fft::pack, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToCCS_32f_I, &fft::forward_in_place_to<fft::ccs, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTFwd_RToPerm_64f_I, &fft::forward_in_place_to<fft::perm, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTFwd_RToPack_64f_I, &fft::forward_in_place_to<fft::pack, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTFwd_RToCCS_64f_I, &fft::forward_in_place_to<fft::ccs, Tav64f, FftContext_R_64f>)

TAV_BIND(FFTInv_PermToR_32f, &fft::inverse_from<fft::perm, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_PackToR_32f, &fft::inverse_from<fft::pack, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_CCSToR_32f, &fft::inverse_from<fft::ccs, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_PermToR_64f, &fft::inverse_from<fft::perm, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTInv_PackToR_64f, &fft::inverse_from<fft::pack, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTInv_CCSToR_64f, &fft::inverse_from<fft::ccs, Tav64f, FftContext_R_64f>)

TAV_BIND(FFTInv_PermToR_32f_I, &fft::inverse_in_place_from<fft::perm, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_PackToR_32f_I, &fft::inverse_in_place_from<fft::pack, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_CCSToR_32f_I, &fft::inverse_in_place_from<fft::ccs, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTInv_PermToR_64f_I, &fft::inverse_in_place_from<fft::perm, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTInv_PackToR_64f_I, &fft::inverse_in_place_from<fft::pack, Tav64f, FftContext_R_64f>)
TAV_BIND(FFTInv_CCSToR_64f_I, &fft::inverse_in_place_from<fft::ccs, Tav64f, FftContext_R_64f>)

}  // namespace tav::TAV_VARIANT
