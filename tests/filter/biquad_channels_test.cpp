// Several channels in one call: each gets what it would have got alone, bit for bit.
#include "filter/biquad_forms.h"

using namespace test;

namespace {

// Channels with sources, destinations and two sets of states: one for the call, one for each channel alone.
template <class D, class State> struct bundle {
  std::vector<std::vector<D>> x, together, alone;
  std::vector<State*>         states, twins;

  void add(std::vector<D> source, State* state, State* twin) {
    together.push_back(source), alone.push_back(source), x.push_back(std::move(source));
    states.push_back(state), twins.push_back(twin);
  }
  int                   count() const { return int(x.size()); }
  std::vector<const D*> sources() const {
    std::vector<const D*> p;
    for (const auto& v : x) p.push_back(v.data());
    return p;
  }
  std::vector<D*> destinations() {
    std::vector<D*> p;
    for (auto& v : together) p.push_back(v.data());
    return p;
  }
  void expect_equal() const {
    for (size_t k = 0; k < x.size(); ++k)
      ASSERT_EQ(first_difference(together[k], alone[k]), -1) << "channel " << k << " of " << x.size();
  }
  void release(TavStatus (*free)(State*)) {
    for (State* s : states) EXPECT_EQ(free(s), tavStatusOk);
    for (State* s : twins) EXPECT_EQ(free(s), tavStatusOk);
  }
};

enum class kind { arbitrary, transposed, direct };

IIRState_32f* state_of(kind k, const std::vector<Tav32f>& taps) {
  IIRState_32f* s = nullptr;
  const int     n = int(taps.size() / 6);
  EXPECT_EQ(k == kind::direct ? tavsIIRInitAlloc_BiQuad_DF1_32f(&s, taps.data(), n, nullptr)
                              : tavsIIRInitAlloc_BiQuad_32f(&s, taps.data(), n, nullptr),
            tavStatusOk);
  return s;
}

IIRState64f_32s* state_of(kind k, const std::vector<Tav64f>& taps) {
  IIRState64f_32s* s = nullptr;
  const int        n = int(taps.size() / 6);
  EXPECT_EQ(k == kind::direct       ? tavsIIRInitAlloc64f_BiQuad_DF1_32s(&s, taps.data(), n, nullptr)
            : k == kind::transposed ? tavsIIRInitAlloc64f_BiQuad_32s(&s, taps.data(), n, nullptr)
                                    : tavsIIRInitAlloc64f_32s(&s, taps.data(), 2, nullptr),
            tavStatusOk);
  return s;
}

template <class F>
bundle<typename F::sample, typename F::state> channels_of(kind k, int n, int len, source_of_data& data) {
  bundle<typename F::sample, typename F::state> b;
  for (int c = 0; c < n; ++c) {
    const auto taps = stable_taps<F>(1 + data.below(5), 0.9, data);
    b.add(noise<F>(size_t(len), data), state_of(k, taps), state_of(k, taps));
  }
  return b;
}

TEST(BiquadChannels, Singles) {
  source_of_data data(1);
  for (kind k : {kind::transposed, kind::direct})
    for (int n = 1; n <= 7; ++n)
      for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 100, 1501}) {
        auto       b       = channels_of<bq_32f>(k, n, len, data);
        const auto sources = b.sources();
        const auto dsts    = b.destinations();
        auto       src     = sources;
        auto       dst     = dsts;
        for (int pass = 0; pass < 4; ++pass) {  // out of place, then in place
          if (pass < 2)
            ASSERT_EQ(call<&tavsIIR_32f_P>(src.data(), dst.data(), len, n, b.states.data()), tavStatusOk);
          else
            ASSERT_EQ(call<&tavsIIR_32f_IP>(dst.data(), len, n, b.states.data()), tavStatusOk);
          for (size_t c = 0; c < size_t(n); ++c)
            ASSERT_EQ(
                call<&tavsIIR_32f>(pass < 2 ? b.x[c].data() : b.alone[c].data(), b.alone[c].data(), len, b.twins[c]),
                tavStatusOk);
          b.expect_equal();
          if (testing::Test::HasFatalFailure()) FAIL() << len << " samples, pass " << pass;
        }
        ASSERT_TRUE(src == sources && dst == dsts);
        b.release(&tavsIIRFree_32f);
      }
}

TEST(BiquadChannels, Integers) {
  source_of_data data(2);
  for (kind k : {kind::arbitrary, kind::transposed, kind::direct})
    for (int n = 1; n <= 5; ++n)
      for (int len : {1, 3, 9, 40, 1501}) {
        auto             b   = channels_of<bq64f_32s>(k, n, len, data);
        auto             src = b.sources();
        auto             dst = b.destinations();
        std::vector<int> scales;
        for (int c = 0; c < n; ++c) scales.push_back(c - 1);
        for (int pass = 0; pass < 4; ++pass) {
          if (pass < 2)
            ASSERT_EQ(call<&tavsIIR64f_32s_PSfs>(src.data(), dst.data(), len, n, b.states.data(), scales.data()),
                      tavStatusOk);
          else
            ASSERT_EQ(call<&tavsIIR64f_32s_IPSfs>(dst.data(), len, n, b.states.data(), scales.data()), tavStatusOk);
          for (size_t c = 0; c < size_t(n); ++c)
            ASSERT_EQ(call<&tavsIIR64f_32s_Sfs>(pass < 2 ? b.x[c].data() : b.alone[c].data(), b.alone[c].data(), len,
                                                b.twins[c], scales[c]),
                      tavStatusOk);
          b.expect_equal();
          if (testing::Test::HasFatalFailure()) FAIL() << len << " samples, pass " << pass;
        }
        b.release(&tavsIIRFree64f_32s);
      }
}

// Arrays of three channels with one bad entry: the status, and nothing is written.
template <class F, class Call>
void check_entries(kind k, const Call& run, typename F::state* other, typename F::state* none_of_these) {
  source_of_data data(3);
  constexpr int  len  = 20;
  auto           b    = channels_of<F>(k, 3, len, data);
  const auto     kept = b.together;
  const auto     src  = b.sources();
  const auto     dst  = b.destinations();
  const auto     with = [&](auto array, size_t at, auto entry) {
    array[at] = entry;
    return array;
  };
  const auto expect = [&](TavStatus status, auto sources, auto destinations, auto states) {
    EXPECT_EQ(run(sources.data(), destinations.data(), len, 3, states.data()), status);
    EXPECT_TRUE(b.together == kept) << "something was written";
  };
  for (size_t at = 0; at < 3; ++at) {
    expect(tavStatusNullPointer, with(src, at, nullptr), dst, b.states);
    expect(tavStatusNullPointer, src, with(dst, at, nullptr), b.states);
    expect(tavStatusNullPointer, src, dst, with(b.states, at, nullptr));
    expect(tavStatusBadContext, src, dst, with(b.states, at, other));
    expect(tavStatusBadContext, src, dst, with(b.states, at, none_of_these));
    expect(tavStatusNullPointer, with(src, 2 - at, nullptr), dst, with(b.states, at, none_of_these));
  }
  b.release(F::free);
}

TEST(BiquadChannels, EntriesOfTheArrays) {
  const std::vector<Tav32f> singles{1, 0, 0, 1, 0, 0};
  const std::vector<Tav64f> doubles{1, 0, 0, 1, 0, 0};
  Tav32u                    words[64] = {};
  IIRState_32f*             ar        = nullptr;
  ASSERT_EQ(tavsIIRInitAlloc_32f(&ar, singles.data(), 2, nullptr), tavStatusOk);
  const auto p  = [](auto... a) { return call<&tavsIIR_32f_P>(a...); };
  const auto ps = [](auto src, auto dst, int len, int n, auto states) {
    const int scales[3] = {};
    return call<&tavsIIR64f_32s_PSfs>(src, dst, len, n, states, scales);
  };
  IIRState_32f*    direct       = state_of(kind::direct, singles);
  IIRState_32f*    cascade      = state_of(kind::transposed, singles);
  IIRState64f_32s* wide_direct  = state_of(kind::direct, doubles);
  IIRState64f_32s* wide_cascade = state_of(kind::transposed, doubles);
  check_entries<bq_32f>(kind::transposed, p, direct, ar);
  check_entries<bq_32f>(kind::direct, p, cascade, reinterpret_cast<IIRState_32f*>(words));
  check_entries<bq64f_32s>(kind::transposed, ps, wide_direct, reinterpret_cast<IIRState64f_32s*>(words));
  check_entries<bq64f_32s>(kind::arbitrary, ps, wide_cascade, reinterpret_cast<IIRState64f_32s*>(words));

  // States of an arbitrary order alone are none for the calls in singles.
  Tav32f        x[4]      = {1, 2, 3, 4};
  Tav32f*       rows[2]   = {x, x + 2};
  IIRState_32f* states[2] = {ar, ar};
  EXPECT_EQ(call<&tavsIIR_32f_IP>(rows, 2, 2, states), tavStatusBadContext);
  tavsIIRFree_32f(ar), tavsIIRFree_32f(direct), tavsIIRFree_32f(cascade);
  tavsIIRFree64f_32s(wide_direct), tavsIIRFree64f_32s(wide_cascade);
}

}  // namespace
