// tavsFFTGetBufSize of the records of integers: as that of the records in floats.
#include "frame/bind.h"
#include "frame/checks.h"
#include "transform/fft/integer_record.h"

namespace tav::TAV_VARIANT {

template <record_id Id, class Record> TavStatus integer_buf_size(const Record* ctx, int* size) {
  if (const TavStatus bad = check_transform<Id>(ctx, size)) return bad;
  const int bytes = reinterpret_cast<const integer_record*>(ctx)->buf_size;
  *size           = bytes < 1 ? 0 : bytes + int(record_alignment);
  return tavStatusOk;
}

TAV_BIND(FFTGetBufSize_C_16sc, (&integer_buf_size<record_id::fft_c_16sc, FftContext_C_16sc>))
TAV_BIND(FFTGetBufSize_C_16s, (&integer_buf_size<record_id::fft_c_16s, FftContext_C_16s>))
TAV_BIND(FFTGetBufSize_C_32sc, (&integer_buf_size<record_id::fft_c_32sc, FftContext_C_32sc>))
TAV_BIND(FFTGetBufSize_C_32s, (&integer_buf_size<record_id::fft_c_32s, FftContext_C_32s>))
TAV_BIND(FFTGetBufSize_R_16s, (&integer_buf_size<record_id::fft_r_16s, FftContext_R_16s>))
TAV_BIND(FFTGetBufSize_R_32s, (&integer_buf_size<record_id::fft_r_32s, FftContext_R_32s>))
TAV_BIND(FFTGetBufSize_R_16s32s, (&integer_buf_size<record_id::fft_r_16s32s, FftContext_R_16s32s>))

}  // namespace tav::TAV_VARIANT
