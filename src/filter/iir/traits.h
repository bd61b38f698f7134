// The forms of the IIR filters: one row for each state type tells the types and the ids; everything else derives from
// it. A form is mixed if its data are not of the arithmetic type, and narrowed if they are integers.
#pragma once
#include "filter/iir/record.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT::iir {

// Tap is the type of the delay line on the interface, and of the taps unless they are converted.
template <class Arithmetic, class Data, class Tap, record_id Ar, record_id Biquads, record_id Df1 = record_id::none>
struct form_row {
  using arithmetic              = Arithmetic;
  using data                    = Data;
  using tap                     = Tap;
  static constexpr record_id ar = Ar, biquads = Biquads;
  static constexpr record_id df1 = Df1;  // none: the form has no such cascade

  static constexpr bool mixed = !std::is_same_v<Arithmetic, Data>;
};

template <class State> struct form;

#define TAV_IIR_FORM(suffix, ids, ...) \
  template <>                          \
  struct form<IIRState##suffix> : form_row<__VA_ARGS__, record_id::iir_ar_##ids, record_id::iir_bq_##ids> {};
TAV_IIR_FORM(_32fc, 32fc, Tav32fc, Tav32fc, Tav32fc)
TAV_IIR_FORM(32f_16s, 32f_16s, Tav32f, Tav16s, Tav32f)
TAV_IIR_FORM(32fc_16sc, 32fc_16sc, Tav32fc, Tav16sc, Tav32fc)
TAV_IIR_FORM(32s_16s, 32s_16s, Tav32f, Tav16s, Tav32s)
TAV_IIR_FORM(32sc_16sc, 32sc_16sc, Tav32fc, Tav16sc, Tav32sc)
TAV_IIR_FORM(_64f, 64f, Tav64f, Tav64f, Tav64f)
TAV_IIR_FORM(_64fc, 64fc, Tav64fc, Tav64fc, Tav64fc)
TAV_IIR_FORM(64f_32f, 64f_32f, Tav64f, Tav32f, Tav64f)
TAV_IIR_FORM(64fc_32fc, 64fc_32fc, Tav64fc, Tav32fc, Tav64fc)
TAV_IIR_FORM(64fc_32sc, 64fc_32sc, Tav64fc, Tav32sc, Tav64fc)
TAV_IIR_FORM(64f_16s, 64f_16s, Tav64f, Tav16s, Tav64f)
TAV_IIR_FORM(64fc_16sc, 64fc_16sc, Tav64fc, Tav16sc, Tav64fc)
#undef TAV_IIR_FORM
template <>
struct form<IIRState_32f>
    : form_row<Tav32f, Tav32f, Tav32f, record_id::iir_ar_32f, record_id::iir_bq_32f, record_id::iir_df1_32f> {};
template <>
struct form<IIRState64f_32s> : form_row<Tav64f, Tav32s, Tav64f, record_id::iir_ar_64f_32s, record_id::iir_bq_64f_32s,
                                        record_id::iir_df1_64f_32s> {};

template <class State> using arithmetic_of            = typename form<State>::arithmetic;
template <class State> using data_of                  = typename form<State>::data;
template <class State> using tap_of                   = typename form<State>::tap;
template <class State> inline constexpr bool is_mixed = form<State>::mixed;

// Complex samples are pairs of parts.
template <class T> using part = part_of<T>;

template <class State> inline constexpr bool is_narrowed = std::is_integral_v<part<data_of<State>>>;

template <class State> iir_record<arithmetic_of<State>>& opened(State* state) {
  return *reinterpret_cast<iir_record<arithmetic_of<State>>*>(state);
}
template <class State> const iir_record<arithmetic_of<State>>& opened(const State* state) {
  return *reinterpret_cast<const iir_record<arithmetic_of<State>>*>(state);
}

template <class State> inline constexpr bool has_df1 = form<State>::df1 != record_id::none;

template <class State> bool is_state(const State* state) {
  using f = form<State>;
  if constexpr (has_df1<State>)
    return has_id<f::ar, f::biquads, f::df1>(state);
  else
    return has_id<f::ar, f::biquads>(state);
}

// Without the cascades in direct form 1, which some calls refuse.
template <class State> bool is_state_but_df1(const State* state) {
  return has_id<form<State>::ar, form<State>::biquads>(state);
}

// Every pointer, the state among them, then its id.
template <class State, class... P> TavStatus check_state(const State* state, const P*... p) {
  if (any_null(state, p...)) return tavStatusNullPointer;
  return is_state(state) ? tavStatusOk : tavStatusBadContext;
}
template <class State, class... P> TavStatus check_state_but_df1(const State* state, const P*... p) {
  if (any_null(state, p...)) return tavStatusNullPointer;
  return is_state_but_df1(state) ? tavStatusOk : tavStatusBadContext;
}

// Block workers: every pointer, the length, the id.
template <class State, class... P> TavStatus check_worker(const State* state, int len, const P*... p) {
  if (any_null(state, p...)) return tavStatusNullPointer;
  if (len < 1) return tavStatusBadSize;
  return is_state(state) ? tavStatusOk : tavStatusBadContext;
}

}  // namespace tav::TAV_VARIANT::iir
