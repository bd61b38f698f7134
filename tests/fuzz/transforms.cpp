// Transforms of every record: sizes, set-up in memory of exactly these sizes or by allocation, both directions in and
// out of place with a work area of exactly its size or none, release.
#include <list>

#include "frame/variant_table.h"
#include "fuzz/refusals.h"
#include "transform/fft_integer_calls.h"

namespace fuzz {
namespace {

using test::order_of;

int drawn_order(input& in) { return in.one_in(40) ? 11 + in.below(4) : in.below(11); }
int drawn_flag(input& in) { return in.one_in(20) ? in.number() : 1 << in.below(4); }

// A context, if the arguments allow one.
template <class F> class context {
 public:
  context(const char* name, input& in, int order) : name_(name) {
    const int flag = drawn_flag(in), hint = in.one_in(4) ? in.number() : in.below(2);
    int       spec = -1, init = -1, work = -1;
    if (F::get_size(order, flag, hint, &spec, &init, &work) < 0) return;
    if (in.one_in(2)) {
      if (F::init_alloc(&ctx_, order, flag, hint) < 0) fail(name, "no context of sizes that were told");
      return;
    }
    spec_ = std::make_unique<memory>(in, size_t(spec), unset{});
    const memory scratch(in, size_t(init), unset{});
    if (F::init(&ctx_, order, flag, hint, spec_->data(), scratch.data()) < 0)
      fail(name, "no context in memory of the sizes that were told");
  }
  ~context() {
    if (ctx_ != nullptr && F::free(ctx_) != tavStatusOk) fail(name_, "a context is not released");
  }
  context(const context&)            = delete;
  context& operator=(const context&) = delete;

  typename F::record* get() const { return ctx_; }

  // None, or exactly what a call needs.
  std::unique_ptr<memory> work(input& in) const {
    int size = -1;
    if (F::get_buf_size(ctx_, &size) < 0 || size < 0) fail(name_, "no size of the work area");
    return in.one_in(3) ? nullptr : std::make_unique<memory>(in, size_t(size), unset{});
  }

 private:
  const char*             name_;
  typename F::record*     ctx_ = nullptr;
  std::unique_ptr<memory> spec_;
};

// One of the calls of a context with one argument spoilt; the others are made from their types.
template <class F> class refusal {
 public:
  refusal(const char* name, input& in, const context<F>& c, int order)
      : in_(in), ctx_(c.get()), work_(c.work(in)), n_(size_t(1) << order), call_{name, in, {}} {}

  void set_up(int order) {
    typename F::record* ctx = nullptr;
    const memory        numbers(in_, 3, int{}, alignof(int));
    int* const          sizes = at<int>(numbers);
    const int           flag = drawn_flag(in_), hint = in_.below(2);
    call_.held.push_back(&numbers);
    if (in_.one_in(2)) call_(F::get_size, order, flag, hint, sizes, sizes + 1, sizes + 2);
    if (in_.one_in(2)) call_(F::free, ctx_);
    if (in_.one_in(2)) call_(F::get_buf_size, ctx_, sizes);
    if (in_.one_in(2) && call_(F::init_alloc, &ctx, order, flag, hint) >= 0) F::free(ctx);
    int spec = 0, init = 0, work = 0;
    if (F::get_size(order, flag, hint, &spec, &init, &work) < 0) return;
    const memory mem(in_, size_t(spec), Tav8u{}), scratch(in_, size_t(init), Tav8u{});
    call_(F::init, &ctx, order, flag, hint, mem.data(), scratch.data());
  }
  template <class... P> void transform(TavStatus (*f)(P...)) {
    const std::tuple<P...> given{made<P>()...};
    for (const memory& m : arrays_) call_.held.push_back(&m);
    std::apply([&](P... p) { call_(f, p...); }, given);
  }

 private:
  template <class P> P made() {
    if constexpr (std::is_same_v<P, int>)
      return in_.number();
    else if constexpr (is_record_pointer<P>)
      return ctx_;
    else if constexpr (std::is_same_v<P, Tav8u*>)
      return work_ ? work_->data() : nullptr;
    else
      return at<std::remove_pointer_t<P>>(
          arrays_.emplace_back(in_, n_ + 2, std::remove_cv_t<std::remove_pointer_t<P>>{}));
  }

  input&                  in_;
  typename F::record*     ctx_;
  std::unique_ptr<memory> work_;
  size_t                  n_;
  std::list<memory>       arrays_;
  spoilt                  call_;
};

Tav8u* place_of(const std::unique_ptr<memory>& m) { return m ? m->data() : nullptr; }

void expect_done(const char* name, TavStatus status, const memory& src, const memory& dst) {
  if (status != tavStatusOk) fail(name, "the call is refused");
  if (!src.as_before()) fail(name, "the source was written");
  dst.look();
}

// Elements of type `part` that hold N points or samples, or their spectrum.
template <class F> size_t elements(size_t n, bool spectrum) {
  if constexpr (!test::is_real<F>)
    return 2 * n;
  else if constexpr (F::format == test::spectrum_format::ccs)
    return !spectrum ? n : n == 1 ? 2 : n + 2;
  else
    return n;
}

template <class F, bool Inverse> void float_transform(const char* name, input& in, const context<F>& c, size_t n) {
  using part        = typename F::part;
  const size_t from = elements<F>(n, Inverse), to = elements<F>(n, !Inverse);
  const auto   work = c.work(in);
  if (in.one_in(3)) {
    memory      both(in, std::max(from, to), part{});
    auto* const p = reinterpret_cast<part*>(both.data());
    if (test::run_fft<F, Inverse>(p, p, n, c.get(), place_of(work)) != tavStatusOk) fail(name, "the call is refused");
    both.look();
    return;
  }
  const memory src(in, from, part{}), dst(in, to, part{});
  expect_done(name,
              test::run_fft<F, Inverse>(reinterpret_cast<const part*>(src.data()), reinterpret_cast<part*>(dst.data()),
                                        n, c.get(), place_of(work)),
              src, dst);
}

template <class F> void call_float(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  const int        order = drawn_order(in);
  const context<F> c(name, in, order);
  if (c.get() == nullptr) return;
  for (int calls = 1 + in.below(3); calls > 0; --calls) {
    if (in.one_in(6)) {
      refusal<F> r(name, in, c, order);
      if (in.one_in(2)) return r.set_up(order);
      if (in.one_in(2)) return r.transform(in.one_in(2) ? F::forward : F::inverse);
      r.transform(in.one_in(2) ? F::forward_on_self : F::inverse_on_self);
    } else if (in.one_in(2))
      float_transform<F, false>(name, in, c, size_t(1) << order);
    else
      float_transform<F, true>(name, in, c, size_t(1) << order);
  }
}

template <class F> struct workers;
template <class Record, class Src, class Dst, order_of From, order_of To, bool Inverse, auto* Out, auto* Self>
struct workers<test::integer_form<Record, Src, Dst, From, To, Inverse, Out, Self>> {
  static constexpr auto *out = Out, *self = Self;
};

// What comes out of one transform, or nothing.
template <class F> std::vector<uint8_t> integer_transform(const char* name, input& in, uint32_t variant) {
  using S                = typename F::src;
  using D                = typename F::dst;
  tav::tav_variant_index = variant;
  const int    order     = drawn_order(in);
  const size_t n = size_t(1) << order, from = test::elements(F::from, n), to = test::elements(F::to, n);

  const bool   on_itself = F::in_place && in.one_in(3), is_refused = in.one_in(6);
  const int    scale = in.number();
  const memory src(in, on_itself ? std::max(from, to) : from, S{}), dst(in, to, D{});

  // What is drawn from here on may differ with the variant, whose contexts have sizes of their own.
  const context<typename F::record> c(name, in, order);
  if (c.get() == nullptr) return {};
  if (is_refused) {
    refusal<typename F::record> r(name, in, c, order);
    if (in.one_in(3))
      r.set_up(order);
    else if (in.one_in(2))
      r.transform(workers<F>::out);
    else
      r.transform(workers<F>::self);
    return {};
  }
  const auto work = c.work(in);
  if (on_itself) {
    if (F::run(at<S>(src), at<D>(src), n, c.get(), scale, place_of(work)) < 0) fail(name, "the call is refused");
    src.look();
    return src.content();
  }
  expect_done(name, F::run(at<const S>(src), at<D>(dst), n, c.get(), scale, place_of(work)), src, dst);
  return dst.content();
}

// The variants give the same integers.
template <class F> void call_integer(const char* name, void (*)(), input& in) {
  input      again  = in;
  const auto result = integer_transform<F>(name, in, 0);
  if (integer_transform<F>(name, again, 1) != result) fail(name, "the variants differ");
}

}  // namespace

void add_fft_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(name) {#name, nullptr, &call_float<name>}
  rows.insert(rows.end(), {TAV_ROW(fft_32fc), TAV_ROW(fft_32f), TAV_ROW(fft_64fc), TAV_ROW(fft_64f),
                           TAV_ROW(fft_perm_32f), TAV_ROW(fft_pack_32f), TAV_ROW(fft_ccs_32f), TAV_ROW(fft_perm_64f),
                           TAV_ROW(fft_pack_64f), TAV_ROW(fft_ccs_64f)});
#undef TAV_ROW
#define TAV_ROW(name) {#name, nullptr, &call_integer<name>}
  rows.insert(rows.end(), {TAV_ROW(fwd_16sc),     TAV_ROW(inv_16sc),     TAV_ROW(fwd_16s),      TAV_ROW(inv_16s),
                           TAV_ROW(fwd_32sc),     TAV_ROW(inv_32sc),     TAV_ROW(fwd_32s),      TAV_ROW(inv_32s),
                           TAV_ROW(fwd_perm_16s), TAV_ROW(fwd_pack_16s), TAV_ROW(fwd_ccs_16s),  TAV_ROW(fwd_perm_32s),
                           TAV_ROW(fwd_pack_32s), TAV_ROW(fwd_ccs_32s),  TAV_ROW(inv_perm_16s), TAV_ROW(inv_pack_16s),
                           TAV_ROW(inv_ccs_16s),  TAV_ROW(inv_perm_32s), TAV_ROW(inv_pack_32s), TAV_ROW(inv_ccs_32s),
                           TAV_ROW(fwd_16s32s),   TAV_ROW(inv_32s16s)});
#undef TAV_ROW
}

}  // namespace fuzz
