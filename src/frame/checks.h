// The orders in which arguments are checked, each written once. The first fault of an order is the call's status.
//
// A check that looks into a record reads it only after the tests before it have passed.
#pragma once
#include "frame/record.h"
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

template <class... P> TAV_INLINE bool any_null(const P*... p) { return (!p || ...); }

// Element-wise functions: every pointer, then the length.
template <class... P> TAV_INLINE TavStatus check_vector(int len, const P*... p) {
  if (any_null(p...)) return tavStatusNullPointer;
  return len < 1 ? tavStatusBadSize : tavStatusOk;
}

// The few functions that test the length first.
template <class... P> TAV_INLINE TavStatus check_length_first(int len, const P*... p) {
  if (len < 1) return tavStatusBadSize;
  return any_null(p...) ? tavStatusNullPointer : tavStatusOk;
}

// The few functions whose length is unsigned: a negative one is a very long one.
template <class... P> TAV_INLINE TavStatus check_unsigned_length(unsigned len, const P*... p) {
  if (any_null(p...)) return tavStatusNullPointer;
  return len == 0 ? tavStatusBadSize : tavStatusOk;
}

// Size queries and set-up of filters: every pointer, then the number of taps or the order, each with a status of its
// own.
template <TavStatus BadCount, class... P> TAV_INLINE TavStatus check_set_up(int count, const P*... p) {
  if (any_null(p...)) return tavStatusNullPointer;
  return count < 1 ? BadCount : tavStatusOk;
}

// Free functions, accessors: the record, then its id.
template <record_id... Accepted, class Record> TAV_INLINE TavStatus check_record(const Record* record) {
  if (!record) return tavStatusNullPointer;
  return has_id<Accepted...>(record) ? tavStatusOk : tavStatusBadContext;
}

// Transform workers: the record, its id, then the data.
template <record_id... Accepted, class Record, class... P>
TAV_INLINE TavStatus check_transform(const Record* record, const P*... data) {
  if (const TavStatus bad = check_record<Accepted...>(record)) return bad;
  return any_null(data...) ? tavStatusNullPointer : tavStatusOk;
}

// Filter workers: every pointer, the count, and the id last.
template <record_id... Accepted, class Record, class... P>
TAV_INLINE TavStatus check_filter(const Record* record, int count, const P*... data) {
  if (any_null(record, data...)) return tavStatusNullPointer;
  if (count < 1) return tavStatusBadSize;
  return has_id<Accepted...>(record) ? tavStatusOk : tavStatusBadContext;
}

}  // namespace tav::TAV_VARIANT
