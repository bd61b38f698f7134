// The records of integers and their real transforms: rows.
#include "transform/fft/integer_real.h"
#include "transform/fft/integer_setup.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FFTGetSize_R_16s, &fft::integer_get_size<FftContext_R_16s>)
TAV_BIND(FFTGetSize_R_32s, &fft::integer_get_size<FftContext_R_32s>)
TAV_BIND(FFTGetSize_R_16s32s, &fft::integer_get_size<FftContext_R_16s32s>)

TAV_BIND(FFTInit_R_16s, &fft::integer_init<FftContext_R_16s>)
TAV_BIND(FFTInit_R_32s, &fft::integer_init<FftContext_R_32s>)
TAV_BIND(FFTInit_R_16s32s, &fft::integer_init<FftContext_R_16s32s>)

TAV_BIND(FFTInitAlloc_R_16s, &fft::integer_init_alloc<FftContext_R_16s>)
TAV_BIND(FFTInitAlloc_R_32s, &fft::integer_init_alloc<FftContext_R_32s>)
TAV_BIND(FFTInitAlloc_R_16s32s, &fft::integer_init_alloc<FftContext_R_16s32s>)

TAV_BIND(FFTFree_R_16s, &fft::integer_free<FftContext_R_16s>)
TAV_BIND(FFTFree_R_32s, &fft::integer_free<FftContext_R_32s>)
TAV_BIND(FFTFree_R_16s32s, &fft::integer_free<FftContext_R_16s32s>)

TAV_BIND(FFTFwd_RToPerm_16s_Sfs, &fft::integer_forward_to<fft::perm, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToPack_16s_Sfs, &fft::integer_forward_to<fft::pack, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToCCS_16s_Sfs, &fft::integer_forward_to<fft::ccs, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToPerm_32s_Sfs, &fft::integer_forward_to<fft::perm, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTFwd_RToPack_32s_Sfs, &fft::integer_forward_to<fft::pack, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTFwd_RToCCS_32s_Sfs, &fft::integer_forward_to<fft::ccs, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTFwd_RToCCS_16s32s_Sfs, &fft::integer_forward_to<fft::ccs, Tav16s, Tav32s, FftContext_R_16s32s>)

TAV_BIND(FFTFwd_RToPerm_16s_ISfs, &fft::integer_forward_in_place_to<fft::perm, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToPack_16s_ISfs, &fft::integer_forward_in_place_to<fft::pack, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToCCS_16s_ISfs, &fft::integer_forward_in_place_to<fft::ccs, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTFwd_RToPerm_32s_ISfs, &fft::integer_forward_in_place_to<fft::perm, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTFwd_RToPack_32s_ISfs, &fft::integer_forward_in_place_to<fft::pack, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTFwd_RToCCS_32s_ISfs, &fft::integer_forward_in_place_to<fft::ccs, Tav32s, FftContext_R_32s>)

TAV_BIND(FFTInv_PermToR_16s_Sfs, &fft::integer_inverse_from<fft::perm, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_PackToR_16s_Sfs, &fft::integer_inverse_from<fft::pack, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_CCSToR_16s_Sfs, &fft::integer_inverse_from<fft::ccs, Tav16s, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_PermToR_32s_Sfs, &fft::integer_inverse_from<fft::perm, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTInv_PackToR_32s_Sfs, &fft::integer_inverse_from<fft::pack, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTInv_CCSToR_32s_Sfs, &fft::integer_inverse_from<fft::ccs, Tav32s, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTInv_CCSToR_32s16s_Sfs, &fft::integer_inverse_from<fft::ccs, Tav32s, Tav16s, FftContext_R_16s32s>)

TAV_BIND(FFTInv_PermToR_16s_ISfs, &fft::integer_inverse_in_place_from<fft::perm, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_PackToR_16s_ISfs, &fft::integer_inverse_in_place_from<fft::pack, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_CCSToR_16s_ISfs, &fft::integer_inverse_in_place_from<fft::ccs, Tav16s, FftContext_R_16s>)
TAV_BIND(FFTInv_PermToR_32s_ISfs, &fft::integer_inverse_in_place_from<fft::perm, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTInv_PackToR_32s_ISfs, &fft::integer_inverse_in_place_from<fft::pack, Tav32s, FftContext_R_32s>)
TAV_BIND(FFTInv_CCSToR_32s_ISfs, &fft::integer_inverse_in_place_from<fft::ccs, Tav32s, FftContext_R_32s>)

}  // namespace tav::TAV_VARIANT
