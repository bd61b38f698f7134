// The record of a transform of integers. Most hold a record of floats, which lies behind them and does the work; short
// transforms of 16-bit integers are done in fixed point and need no more than their shifts. Read-only once it is set
// up.
#pragma once
#include "frame/record.h"

namespace tav {

struct integer_record {
  record_id id;
  int32_t   order, hint;
  int32_t   buf_size;  // bytes of work area that a call needs; below 0: more than 31 bits hold
  origin    from;
  int32_t   shift_forward, shift_inverse;  // fixed point: the flag's factor in a direction, 2^-shift ...
  uint32_t  root_half;                     // ... and 1/sqrt(2) more in both
  void*     nested;                        // the record of floats; null: in fixed point
};

inline constexpr size_t single_point_spec = 116;  // the context of one point, the smallest

static_assert(sizeof(integer_record) <= single_point_spec - (record_alignment - 1));

}  // namespace tav
