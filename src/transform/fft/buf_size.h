// The query of the work area's size, for the records in floats.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"
#include "transform/fft/record.h"

namespace tav::TAV_VARIANT {

template <record_id Id, class T, class Record> TavStatus buf_size(const Record* ctx, int* size) {
  if (const TavStatus bad = check_transform<Id>(ctx, size)) return bad;
  const int bytes = reinterpret_cast<const fft_record<T>*>(ctx)->buf_size;
  *size           = bytes < 1 ? 0 : bytes + int(record_alignment);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
