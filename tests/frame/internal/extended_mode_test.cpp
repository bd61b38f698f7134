// The scope of the extended-precision unit: the mode inside, the caller's mode behind it, and the numbers that lie in
// registers meanwhile.
#include <gtest/gtest.h>
#include <string.h>

#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {
namespace {

// Of a caller: any precision and rounding, exceptions that would trap.
const uint16_t callers_words[] = {0x037F, 0x027F, 0x007F, 0x077F, 0x0B7F, 0x0C7F, 0x0F7F, 0x0340, 0x0040};

struct unit_state {
  uint16_t control, flags, tags;

  static unit_state now() {
    struct {
      uint32_t control, status, tags, rest[4];
    } env;
    __asm__ volatile("fnstenv %0\n\tfldenv %0" : "+m"(env));
    return {uint16_t(env.control), uint16_t(env.status), uint16_t(env.tags)};
  }
  bool operator==(const unit_state&) const = default;
};

void set_word(uint16_t word) { __asm__ volatile("fldcw %0" : : "m"(word) : "memory"); }

void lower_flags() { __asm__ volatile("fnclex"); }

// No flag is up when it begins. The test's own mode comes back behind it.
class callers_mode {
 public:
  explicit callers_mode(uint16_t word) : mine_(unit_state::now().control) {
    lower_flags();
    set_word(word);
  }
  ~callers_mode() {
    lower_flags();
    set_word(mine_);
  }
  callers_mode(const callers_mode&)            = delete;
  callers_mode& operator=(const callers_mode&) = delete;

 private:
  uint16_t mine_;
};

constexpr uint16_t mode_bits = 0x0F3F;

void expect_extended() { EXPECT_EQ(unit_state::now().control & mode_bits, 0x033F); }

// a / b, rounded in the mode at hand.
long double quotient(long double a, long double b) { return settled(settled(a) / settled(b)); }

bool same(long double a, long double b) { return memcmp(&a, &b, 10) == 0; }

const long double third = 0xA.AAAAAAAAAAAAAABp-5L;

TEST(ExtendedMode, HoldsInsideAndGoesBehind) {
  for (uint16_t word : callers_words) {
    const callers_mode caller(word);
    const unit_state   before = unit_state::now();
    {
      const extended_mode scope;
      expect_extended();
      EXPECT_TRUE(same(quotient(1, 3), third));
    }
    EXPECT_EQ(unit_state::now().control, word);
    if ((word & mode_bits) != 0x033F) {
      EXPECT_TRUE(unit_state::now() == before) << std::hex << word << ": flags of the scope's own must not show";
    }
  }
}

// An exception of the scope's own must not trap under the caller's masks, not at the next instruction either.
TEST(ExtendedMode, ExceptionsStayInside) {
  for (uint16_t word : callers_words) {
    const callers_mode caller(word);
    {
      const extended_mode scope;
      EXPECT_EQ(quotient(1, 0), __builtin_infl());
      EXPECT_TRUE(quotient(0, 0) != quotient(0, 0));
    }
    __asm__ volatile("fwait");
    EXPECT_EQ(unit_state::now().control, word);
  }
}

// Flags that were up stay up, whatever happens inside.
TEST(ExtendedMode, CallersFlagsStay) {
  const callers_mode caller(0x027F);
  quotient(1, 0);
  const unit_state before = unit_state::now();
  EXPECT_EQ(before.flags & 0x3F, 0x04);
  {
    const extended_mode scope;
    quotient(0, 0);
  }
  EXPECT_TRUE(unit_state::now() == before);
}

// Each puts back what it found, also where it found nothing to change, or the mode was changed inside another.
TEST(ExtendedMode, Nested) {
  for (uint16_t outer : callers_words)
    for (uint16_t inner : callers_words) {
      const callers_mode caller(outer);
      {
        const extended_mode scope;
        {
          const extended_mode again;
          expect_extended();
        }
        expect_extended();
        set_word(inner);
        {
          const extended_mode again;
          expect_extended();
        }
        EXPECT_EQ(unit_state::now().control, inner);
        set_word(0x033F);
      }
      EXPECT_EQ(unit_state::now().control & mode_bits, outer & mode_bits);
    }
}

// Numbers on their way through a scope, in whatever registers the compiler has for them: from before it to its work,
// from its work to what follows, and past it.

[[gnu::noinline]] long double worked_on_inside(const long double* v) {
  const long double   a = v[0] * v[1], b = v[2] * v[3];
  const extended_mode scope;
  return settled(a * b + a);
}

[[gnu::noinline]] long double made_inside(const long double* v) {
  const extended_mode scope;
  return v[0] * v[1] + v[2] * v[3];
}

[[gnu::noinline]] long double led_past(const long double* v) {
  const long double a = v[0] * v[1], b = v[2] * v[3];
  long double       inside;
  {
    const extended_mode scope;
    inside = v[0] + v[2];
  }
  return a * inside - b;
}

[[gnu::noinline]] double led_past_in_sse(const double* v) {
  const double  a     = held(v[0] * v[1]);
  const __m128i lanes = held(_mm_set1_epi32(7));
  double        inside;
  {
    const extended_mode scope;
    inside = double(settled((long double)(v[2]) * v[3]));
  }
  return a + inside + _mm_cvtsi128_si32(lanes);
}

TEST(ExtendedMode, NumbersComeThrough) {
  const long double v[4] = {2, 3, 5, 7};
  const double      w[4] = {2, 3, 5, 7};
  for (uint16_t word : callers_words) {
    const callers_mode caller(word);
    EXPECT_EQ(worked_on_inside(v), 216);
    EXPECT_EQ(unit_state::now().tags, 0xFFFF) << "a number is left in a register";
    EXPECT_EQ(made_inside(v), 41);
    EXPECT_EQ(led_past(v), 7);
    EXPECT_EQ(led_past_in_sse(w), 48);
    EXPECT_EQ(made_inside(v) * led_past(v) - worked_on_inside(v), 71);
    EXPECT_EQ(unit_state::now().tags, 0xFFFF) << "a number is left in a register";
  }
}

#if defined(__i386__)
double third_of_nine;

void take_third_of_nine() {
  const extended_mode scope;
  third_of_nine = double(quotient(9, 3));
}

// A caller that has numbers pending on the unit's stack finds them there again.
TEST(ExtendedMode, StackOfTheCaller) {
  for (uint16_t word : callers_words) {
    const callers_mode  caller(word);
    alignas(16) uint8_t pending[32] = {};
    void (*function)()              = take_third_of_nine;
    third_of_nine                   = 0;
    __asm__ volatile(
        "movl %%esp, %%esi\n\tandl $-16, %%esp\n\t"
        "fldz\n\tfld1\n\tcall *%%eax\n\tfstpt (%%edi)\n\tfstpt 16(%%edi)\n\t"
        "movl %%esi, %%esp"
        : "+a"(function)
        : "D"(pending)
        : "ecx", "edx", "esi", "memory", "cc", "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)",
          "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
    const long double one = 1, zero = 0;
    EXPECT_EQ(third_of_nine, 3);
    EXPECT_EQ(memcmp(pending, &one, 10), 0);
    EXPECT_EQ(memcmp(pending + 16, &zero, 10), 0);
    EXPECT_EQ(unit_state::now().tags, 0xFFFF);
  }
}
#endif

}  // namespace
}  // namespace tav::TAV_VARIANT
