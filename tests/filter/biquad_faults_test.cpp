// The status rows of the calls for cascades.
#include "harness/faults.h"

using namespace test;

namespace {

template <size_t I, class... P> void add_null(std::vector<fault<P...>>& faults) {
  faults.push_back({"argument " + std::to_string(I) + " null", tavStatusNullPointer,
                    [](arguments<P...>& a) { a.template spoil<I>(); }});
}

template <size_t I, TavStatus Status, class... P> void add_count_below_one(std::vector<fault<P...>>& faults) {
  faults.push_back({"count 0", Status, [](arguments<P...>& a) { a.template set<I>(0); }});
  faults.push_back(
      {"lowest count", Status, [](arguments<P...>& a) { a.template set<I>(std::numeric_limits<int>::min()); }});
}

// numBq, size: the pointer comes first.
constexpr auto size_query = []<class... P>(TavStatus (*f)(P...), auto each) {
  std::vector<fault<P...>> faults;
  add_null<1>(faults);
  add_count_below_one<0, tavStatusBadIirOrder>(faults);
  each([&] { expect_faults(f, faults); });
};

// state, taps, numBq, and behind the line, which may be null, perhaps the memory.
template <class... P> void set_up_of(TavStatus (*f)(P...), auto each) {
  std::vector<fault<P...>> faults;
  constexpr size_t         last = sizeof...(P) - 1;
  add_null<0>(faults);
  add_null<1>(faults);
  if constexpr (std::is_same_v<std::tuple_element_t<last, std::tuple<P...>>, Tav8u*>) add_null<last>(faults);
  add_count_below_one<2, tavStatusBadIirOrder>(faults);
  each([&] { expect_faults(f, faults); });
}
constexpr auto set_up = [](auto f, auto each) { set_up_of(f, each); };

// A state and its line; the blocks of random bytes are no states.
template <bool Null_line_is_bad, class... P> void delay_line_of(TavStatus (*f)(P...), auto each) {
  std::vector<fault<P...>> faults;
  add_null<0>(faults);
  if (Null_line_is_bad) add_null<1>(faults);
  faults.push_back({"no state", tavStatusBadContext, [](arguments<P...>&) {}});
  each([&] { expect_faults(f, faults); });
}
constexpr auto get_line = [](auto f, auto each) { delay_line_of<true>(f, each); };
constexpr auto set_line = [](auto f, auto each) { delay_line_of<false>(f, each); };

// Arrays, length, channels; what the arrays hold is looked at later.
template <TavStatus Too_few, class... P> void channels_of(TavStatus (*f)(P...), auto each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  constexpr size_t length = std::is_pointer_v<std::tuple_element_t<1, std::tuple<P...>>> ? 2 : 1;
  add_below_one<length>(faults);
  add_count_below_one<length + 1, Too_few>(faults);
  each([&] { expect_faults(f, faults); });
}
constexpr auto channels        = [](auto f, auto each) { channels_of<tavStatusBadChannelCount>(f, each); };
constexpr auto scaled_channels = [](auto f, auto each) { channels_of<tavStatusBadChannelCount64>(f, each); };

// The number of sections, the pointers, the length if there is one.
template <size_t Sections, class... P> void direct_of(TavStatus (*f)(P...), auto each) {
  std::vector<fault<P...>> faults;
  add_count_below_one<Sections, tavStatusBadIirOrder>(faults);
  add_null_pointers(faults);
  constexpr size_t length = Sections - 2;
  if constexpr (std::is_same_v<std::tuple_element_t<length, std::tuple<P...>>, int>) add_below_one<length>(faults);
  each([&] { expect_faults(f, faults); });
}
template <size_t Sections> constexpr auto direct = [](auto f, auto each) { direct_of<Sections>(f, each); };

TAV_FAULTS(IIR64f_32s_IPSfs, scaled_channels)
TAV_FAULTS(IIR64f_32s_PSfs, scaled_channels)
TAV_FAULTS(IIRGetDlyLine64f_DF1_32s, get_line)
TAV_FAULTS(IIRGetStateSize32f_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize32fc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize32s_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize32s_BiQuad_16s32f, size_query)
TAV_FAULTS(IIRGetStateSize32sc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize32sc_BiQuad_16sc32fc, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_32f, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_32s, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_DF1_32s, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_32fc, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_32sc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_32f, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_32fc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_64f, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_64fc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_DF1_32f, size_query)
TAV_FAULTS(IIRInit32f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit32fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit32s_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit32s_BiQuad_16s32f, set_up)
TAV_FAULTS(IIRInit32sc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit32sc_BiQuad_16sc32fc, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_32f, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_32s, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_DF1_32s, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_32sc, set_up)
TAV_FAULTS(IIRInitAlloc32f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc32fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc32s_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc32s_BiQuad_16s32f, set_up)
TAV_FAULTS(IIRInitAlloc32sc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc32sc_BiQuad_16sc32fc, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_32f, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_32s, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_DF1_32s, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_32sc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_32f, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_64f, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_64fc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_DF1_32f, set_up)
TAV_FAULTS(IIRInit_BiQuad_32f, set_up)
TAV_FAULTS(IIRInit_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInit_BiQuad_64f, set_up)
TAV_FAULTS(IIRInit_BiQuad_64fc, set_up)
TAV_FAULTS(IIRInit_BiQuad_DF1_32f, set_up)
TAV_FAULTS(IIROne_BiQuadDirect_16s, direct<3>)
TAV_FAULTS(IIROne_BiQuadDirect_16s_I, direct<2>)
TAV_FAULTS(IIRSetDlyLine64f_DF1_32s, set_line)
TAV_FAULTS(IIR_32f_IP, channels)
TAV_FAULTS(IIR_32f_P, channels)
TAV_FAULTS(IIR_BiQuadDirect_16s, direct<4>)
TAV_FAULTS(IIR_BiQuadDirect_16s_I, direct<3>)

}  // namespace
