// Several channels in one call, each with a state of its own. Nothing is filtered before all states have been tested.
#include "filter/iir/biquads.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {
namespace iir {

template <class P> bool any_entry_null(P const* array, int n) {
  for (int i = 0; i < n; ++i)
    if (!peek(array + i)) return true;
  return false;
}

// The first state's id is one of those accepted, and all others have the same.
template <record_id... Accepted, class State> bool all_alike(State* const* states, int n) {
  const auto id_of = [](const State* s) { return peek(reinterpret_cast<const record_id*>(s)); };
  const auto first = id_of(peek(states));
  if (((first != Accepted) && ...)) return false;
  for (int i = 1; i < n; ++i)
    if (id_of(peek(states + i)) != first) return false;
  return true;
}

// The null pointers among the arrays have been found.
template <record_id... Accepted, class S, class D, class State>
TavStatus check_channels(const S* const* src, D* const* dst, int len, int n, State* const* states, TavStatus too_few) {
  if (len < 1) return tavStatusBadSize;
  if (n < 1) return too_few;
  if (any_entry_null(states, n) || any_entry_null(src, n) || any_entry_null(dst, n)) return tavStatusNullPointer;
  return all_alike<Accepted...>(states, n) ? tavStatusOk : tavStatusBadContext;
}

static void run_two(channels<Tav32f, 2> data, size_t n, bool df1) {
  if (df1) return run_two_cascades_df1(data, n);
  if (n > 2) return run_two_cascades(data, n);
  for (int k = 0; k < 2; ++k) run_one_by_one(*data.of[k], data.src[k], data.dst[k], n);
}

static TavStatus filter_channels(const Tav32f** src, Tav32f** dst, int len, int nChannels, IIRState_32f** states) {
  constexpr auto bq = record_id::iir_bq_32f, df1 = record_id::iir_df1_32f;
  if (any_null(states, src, dst)) return tavStatusNullPointer;
  if (const TavStatus bad = check_channels<bq, df1>(src, dst, len, nChannels, states, tavStatusBadChannelCount))
    return bad;
  const bool is_df1 = has_id<df1>(peek(states));
  int        k      = 0;
  for (; k + 1 < nChannels; k += 2) {
    const cascade<Tav32f> a = cascade_of(opened(peek(states + k))), b = cascade_of(opened(peek(states + k + 1)));
    run_two({{&a, &b}, {peek(src + k), peek(src + k + 1)}, {peek(dst + k), peek(dst + k + 1)}}, size_t(len), is_df1);
  }
  if (k < nChannels) return forward<&::tavsIIR_32f>(peek(src + k), peek(dst + k), len, peek(states + k));
  return tavStatusOk;
}

static TavStatus filter_channels_in_place(Tav32f** srcDst, int len, int nChannels, IIRState_32f** states) {
  return filter_channels(const_cast<const Tav32f**>(srcDst), srcDst, len, nChannels, states);
}

// Two sections at a time keep the processor busy already: the channels go one after the other.
static TavStatus filter_channels_scaled(const Tav32s** src, Tav32s** dst, int len, int nChannels,
                                        IIRState64f_32s** states, const int* scaleFactor) {
  constexpr auto ar = record_id::iir_ar_64f_32s, bq = record_id::iir_bq_64f_32s, df1 = record_id::iir_df1_64f_32s;
  if (any_null(states, src, dst, scaleFactor)) return tavStatusNullPointer;
  if (const TavStatus bad = check_channels<ar, bq, df1>(src, dst, len, nChannels, states, tavStatusBadChannelCount64))
    return bad;
  for (int k = 0; k < nChannels; ++k)
    forward<&::tavsIIR64f_32s_Sfs>(peek(src + k), peek(dst + k), len, peek(states + k), peek(scaleFactor + k));
  return tavStatusOk;
}

static TavStatus filter_channels_scaled_in_place(Tav32s** srcDst, int len, int nChannels, IIRState64f_32s** states,
                                                 const int* scaleFactor) {
  return filter_channels_scaled(const_cast<const Tav32s**>(srcDst), srcDst, len, nChannels, states, scaleFactor);
}

}  // namespace iir

TAV_BIND(IIR_32f_P, &iir::filter_channels)
TAV_BIND(IIR_32f_IP, &iir::filter_channels_in_place)
TAV_BIND(IIR64f_32s_PSfs, &iir::filter_channels_scaled)
TAV_BIND(IIR64f_32s_IPSfs, &iir::filter_channels_scaled_in_place)

}  // namespace tav::TAV_VARIANT
