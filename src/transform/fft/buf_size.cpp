// tavsFFTGetBufSize: the work area that a call takes, with room to align it.
#include "frame/bind.h"
#include "frame/checks.h"
#include "transform/fft/integer_record.h"
#include "transform/fft/record.h"

namespace tav::TAV_VARIANT {

template <record_id Id, class Inner, class Record> TavStatus buf_size(const Record* ctx, int* size) {
  if (const TavStatus bad = check_transform<Id>(ctx, size)) return bad;
  const int bytes = reinterpret_cast<const Inner*>(ctx)->buf_size;
  *size           = bytes < 1 ? 0 : bytes + int(record_alignment);
  return tavStatusOk;
}

using of_singles  = fft_record<Tav32f>;
using of_doubles  = fft_record<Tav64f>;
using of_integers = integer_record;

TAV_BIND(FFTGetBufSize_C_32fc, (&buf_size<record_id::fft_c_32fc, of_singles, FftContext_C_32fc>))
TAV_BIND(FFTGetBufSize_C_32f, (&buf_size<record_id::fft_c_32f, of_singles, FftContext_C_32f>))
TAV_BIND(FFTGetBufSize_C_64fc, (&buf_size<record_id::fft_c_64fc, of_doubles, FftContext_C_64fc>))
TAV_BIND(FFTGetBufSize_C_64f, (&buf_size<record_id::fft_c_64f, of_doubles, FftContext_C_64f>))
TAV_BIND(FFTGetBufSize_R_32f, (&buf_size<record_id::fft_r_32f, of_singles, FftContext_R_32f>))
TAV_BIND(FFTGetBufSize_R_64f, (&buf_size<record_id::fft_r_64f, of_doubles, FftContext_R_64f>))
TAV_BIND(FFTGetBufSize_C_16sc, (&buf_size<record_id::fft_c_16sc, of_integers, FftContext_C_16sc>))
TAV_BIND(FFTGetBufSize_C_16s, (&buf_size<record_id::fft_c_16s, of_integers, FftContext_C_16s>))
TAV_BIND(FFTGetBufSize_C_32sc, (&buf_size<record_id::fft_c_32sc, of_integers, FftContext_C_32sc>))
TAV_BIND(FFTGetBufSize_C_32s, (&buf_size<record_id::fft_c_32s, of_integers, FftContext_C_32s>))
TAV_BIND(FFTGetBufSize_R_16s, (&buf_size<record_id::fft_r_16s, of_integers, FftContext_R_16s>))
TAV_BIND(FFTGetBufSize_R_32s, (&buf_size<record_id::fft_r_32s, of_integers, FftContext_R_32s>))
TAV_BIND(FFTGetBufSize_R_16s32s, (&buf_size<record_id::fft_r_16s32s, of_integers, FftContext_R_16s32s>))

}  // namespace tav::TAV_VARIANT
