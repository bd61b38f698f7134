// FIR filters of words, and Direct calls, beside plain loops.
#include "fir.h"
#include "plain_words.h"

namespace bench {
namespace {

constexpr int    shift = 15;
constexpr double same  = 0;  // as tolerance

void words(int taps) {
  const std::string name = named("FIR_16s", taps);
  const row         r{.name = name.c_str(), .bytes = 4, .in_cache = 1.5, .curve = true, .taps = taps};
  if (!wanted(r)) return;
  const problem<Tav16s, Tav16s> p(taps);
  FIRState_16s*                 state = nullptr;
  tavsFIRInitAlloc_16s(&state, p.h.data(), taps, 0, p.newest_first.data());

  match<Tav16s, Tav16s> m(r, p.dst, same);
  m.add(ours, [&p, state](int n) { tavsFIR_16s_Sfs(p.src, p.dst, n, state, shift); });
  m.add(loop, [&p](int n) { plain::filter(p.src, p.h.data(), p.taps(), shift, p.dst, n); });
  m.hold();
  tavsFIRFree_16s(state);
}

void pairs(int taps) {
  const std::string name = named("FIR32sc_16sc", taps);
  const row         r{.name = name.c_str(), .bytes = 8, .in_cache = 1.5};
  if (!wanted(r)) return;
  const problem<Tav16sc, Tav16sc> p(taps);
  std::vector<Tav32sc>            wide;
  for (const Tav16sc& v : p.h) wide.push_back({v.re, v.im});
  FIRState32sc_16sc* state = nullptr;
  tavsFIRInitAlloc32sc_16sc(&state, wide.data(), taps, 0, p.newest_first.data());

  match<Tav16s, Tav16sc> m(r, p.dst, same);
  m.add(ours, [&p, state](int n) { tavsFIR32sc_16sc_Sfs(p.src, p.dst, n, state, shift); });
  m.add(loop, [&p](int n) { plain::filter(p.src, p.h.data(), p.taps(), shift, p.dst, n); });
  m.hold();
  tavsFIRFree32sc_16sc(state);
}

void direct(int taps) {
  const std::string name = named("FIR_Direct_32f", taps);
  const row         r{
              .name = name.c_str(), .bytes = 8, .in_cache = 1.5, .curve = true, .taps = taps, .account = "FIR_Direct_32f"};
  if (!wanted(r)) return;
  const problem<float, float> p(taps);
  std::vector<float>          ring(p.src - taps, p.src);  // the oldest first, and once more
  ring.insert(ring.end(), p.src - taps, p.src);
  std::vector<float>  other = ring;
  int                 index = 0, other_index = 0;
  match<float, float> m(r, p.dst, same);
  m.add(ours, [&](int n) { tavsFIR_Direct_32f(p.src, p.dst, n, p.h.data(), p.taps(), ring.data(), &index); });
  m.add(loop, [&](int n) { plain::filter_by_ring(p.src, p.h.data(), p.taps(), other.data(), &other_index, p.dst, n); });
  m.hold();
}

}  // namespace

BENCH_FAMILY(fir_words) {
  for (int taps : {8, 32, 256}) words(taps);
  for (int taps : {32, 256}) pairs(taps);
  for (int taps : {8, 32, 256}) direct(taps);
}

}  // namespace bench
