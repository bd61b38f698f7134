// The record of a transform in floats: complex ones of singles and doubles, interleaved or split, and the real ones
// that are made of a complex transform of half their length. Read-only once it is set up.
#pragma once
#include "frame/record.h"

namespace tav {

template <class T> struct fft_record {
  record_id id;
  int32_t   order;
  uint32_t  scale_forward, scale_inverse;  // whether the direction multiplies by `scale`
  T         scale[16 / sizeof(T)];         // a register of it, on a 16-byte boundary like the record
  int32_t   hint;                          // kept, not used
  int32_t   buf_size;                      // bytes of work area that a call needs
  origin    from;
  void*     allocation;                   // what Free releases: the record may lie up to 63 bytes into it
  const T * stages, *columns;             // the complex transform's tables
  const T * real_forward, *real_inverse;  // the real transform's recombination
};

inline constexpr size_t record_head = 128;  // the tables begin behind it

// Short transforms have no tables, and little room.
static_assert(sizeof(fft_record<Tav32f>) <= 152 - 63 && sizeof(fft_record<Tav64f>) <= 160 - 63);
static_assert(offsetof(fft_record<Tav32f>, scale) % 16 == 0 && offsetof(fft_record<Tav64f>, scale) % 16 == 0);

}  // namespace tav
