// tavsFFTGetBufSize of the records in floats: the work area that a call takes, with room to align it.
#include "transform/fft/buf_size.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FFTGetBufSize_C_32fc, &buf_size<record_id::fft_c_32fc, Tav32f, FftContext_C_32fc>)
TAV_BIND(FFTGetBufSize_C_32f, &buf_size<record_id::fft_c_32f, Tav32f, FftContext_C_32f>)
TAV_BIND(FFTGetBufSize_C_64fc, &buf_size<record_id::fft_c_64fc, Tav64f, FftContext_C_64fc>)
TAV_BIND(FFTGetBufSize_C_64f, &buf_size<record_id::fft_c_64f, Tav64f, FftContext_C_64f>)
TAV_BIND(FFTGetBufSize_R_32f, &buf_size<record_id::fft_r_32f, Tav32f, FftContext_R_32f>)
TAV_BIND(FFTGetBufSize_R_64f, &buf_size<record_id::fft_r_64f, Tav64f, FftContext_R_64f>)

}  // namespace tav::TAV_VARIANT
