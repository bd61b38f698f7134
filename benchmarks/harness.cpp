// The program: confines the peers, then holds every contest and writes one JSON file.
//
//   bench VARIANT OUT.json [--quick] [--alone] [--filter=REGEX]
//
// --quick measures less often, --alone this library only.
// Repetitions of a contest's contenders are shuffled, so that what disturbs the machine meets all alike; the report
// takes medians.
#include "harness.h"

#include <string.h>
#include <sys/mman.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <regex>

#include "confine.h"
#include "families.h"

namespace bench {
namespace {

constexpr size_t small_elements = 64, l1_bytes = 8 << 10, l2_bytes = 128 << 10, memory_bytes = 64 << 20;
constexpr size_t curve_from = 64, curve_sparse_from = 1 << 20;
constexpr char   small_place[] = "64 elements";
constexpr size_t skew          = 1280;  // between the arrays modulo a page: a load must not look like a recent store's

bool       quick = false, alone = false;
std::regex filter(".");

struct registered {
  const char* name;
  void (*hold)();
};
std::vector<registered>& all_contests() {
  static std::vector<registered> all;
  return all;
}
const family_facts* held = nullptr;  // the family whose contests are being held

[[noreturn]] void fail(const std::string& why) {
  std::cerr << "bench: " << why << "\n";
  exit(1);
}

// One JSON document for many rounds of benchmarks.
class reporter : public benchmark::JSONReporter {
 public:
  bool ReportContext(const Context& context) override {
    if (started_) return true;
    started_ = true;
    return JSONReporter::ReportContext(context);
  }
  void Finalize() override {}
  void finish() {
    if (!started_) fail("no function matches the filter");
    JSONReporter::Finalize();
  }

 private:
  bool started_ = false;
} results;

}  // namespace

family::family(const char* name, void (*contests)()) { all_contests().push_back({name, contests}); }

static void require_listed(const char* name) {
  for (const family_facts* f = families; f->contests != nullptr; ++f)
    if (strcmp(name, f->contests) == 0) return;
  fail(std::string("families.cpp does not list ") + name);
}

static void hold_all() {
  for (const registered& r : all_contests()) require_listed(r.name);
  for (held = families; held->contests != nullptr; ++held)
    for (const registered& r : all_contests())
      if (strcmp(r.name, held->contests) == 0) r.hold();
}

void* pool(int array) {
  constexpr size_t   size   = memory_bytes + (2 << 20);
  static char* const memory = [] {
    void* p = mmap(nullptr, 3 * size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) fail("no memory for the arrays");
    madvise(p, 3 * size, MADV_HUGEPAGE);
    return static_cast<char*>(p);
  }();
  return memory + array * (size + skew);
}

uint64_t hash(const void* data, size_t bytes) {
  uint64_t h = 0xcbf29ce484222325;
  for (size_t i = 0; i < bytes; ++i) h = (h ^ static_cast<const unsigned char*>(data)[i]) * 0x100000001b3;
  return h;
}

void require_same(const row& r, const std::string& contender, bool same) {
  if (!same) fail(std::string(r.name) + ": " + contender + " computes something else");
}

bool wanted(const row& r) { return std::regex_search(r.name, filter); }

std::vector<point> points_of(const row& r, size_t element_bytes) {
  std::vector<point> points{
      {small_elements * element_bytes, small_place}, {l1_bytes, "L1"}, {l2_bytes, "L2"}, {memory_bytes, "memory"}};
  if (!r.curve) return points;
  for (size_t bytes = curve_from; bytes < memory_bytes; bytes *= bytes < curve_sparse_from ? 2 : 4)
    if (std::none_of(points.begin(), points.end(), [&](const point& p) { return p.bytes == bytes; }))
      points.push_back({bytes, ""});
  return points;
}

// Where a point belongs: its place, family, account and plot.
static std::string label_of(const row& r, const point& p, bool memory) {
  const std::string place   = p.place, name(r.name);
  const std::string account = *r.account != 0        ? r.account
                              : place == small_place ? short_arrays
                              : memory               ? held->in_memory
                                                     : held->in_cache;
  const std::string plot    = !r.curve ? "" : r.taps == 0 ? name : name.substr(0, name.find(',')) + ", " + place;
  return place + '|' + held->title + '|' + account + '|' + plot;
}

void measure_point(const row& r, const point& p, int n, const std::vector<entry>& entries) {
  const bool        table = *p.place != 0, memory = p.bytes == memory_bytes;
  const double      goal        = !table ? 0 : memory ? r.in_memory : r.in_cache;
  const int         repetitions = quick || alone || !table ? 3 : 5;
  const std::string label       = label_of(r, p, memory);
  for (const entry& e : entries) {
    if (alone && e.name != ours) continue;
    const auto measure = [&, goal](benchmark::State& state) {
      e.measure(state);
      state.SetLabel(label);
      state.counters["elements"] = n;
      if (r.taps != 0) state.counters["taps"] = r.taps;
      state.counters["bytes"] = n * r.bytes;
      state.counters["goal"]  = *r.against == 0 || e.name == r.against ? goal : 0;
    };
    const std::string name = std::string(r.name) + "/" + std::to_string(p.bytes) + "/" + e.name;
    benchmark::RegisterBenchmark(name.c_str(), measure)->Repetitions(repetitions)->MinTime(quick ? 0.003 : 0.005);
  }
  benchmark::RunSpecifiedBenchmarks(&results, ".");
  benchmark::ClearRegisteredBenchmarks();
}

static int run(int argc, char** argv) {
  if (argc < 3) fail("usage: bench VARIANT OUT.json [--quick] [--alone] [--filter=REGEX]");
  const std::string variant = argv[1], target = sizeof(void*) == 4 ? "i686" : "x86_64";
  confine(variant, argv);
  for (int i = 3; i < argc; ++i) {
    const std::string option = argv[i];
    if (option == "--quick")
      quick = true;
    else if (option.rfind("--filter=", 0) == 0)
      filter = option.substr(9);
    else if (option == "--alone")
      alone = true;
    else
      fail("unknown option " + option);
  }
  if (variant != std::string(tavsGetLibVersion()->targetCode, 2)) fail("the library does not run variant " + variant);

  char  name[] = "bench", interleaved[] = "--benchmark_enable_random_interleaving=true";
  char* arguments[] = {name, interleaved, nullptr};
  int   count       = 2;
  benchmark::Initialize(&count, arguments);
  benchmark::AddCustomContext("target", target);
  benchmark::AddCustomContext("variant", variant);
  benchmark::AddCustomContext("compiler", __VERSION__);

  std::ofstream out(argv[2]);
  results.SetOutputStream(&out);
  hold_all();
  results.finish();
  out.close();
  if (!out) fail(std::string("cannot write ") + argv[2]);
  return 0;
}

}  // namespace bench

int main(int argc, char** argv) { return bench::run(argc, argv); }
