// tavsCopy_1u, tavsPackBits_32u8u. CopyBE and CopyLE are in bits_tuned.cpp.
#include "frame/bind.h"
#include "vector/bit_copy.h"

namespace tav::TAV_VARIANT {

// Collects bits, most significant first, and writes them out in big-endian words as they fill.
class bit_writer {
 public:
  bit_writer(Tav8u* dst, unsigned bit) : dst_(dst + bit / 8), pending_(bit % 8) {
    if (pending_ != 0) word_ = *dst_ >> (8 - pending_);
  }

  void put(Tav32u value, unsigned width) {  // width 0 to 32; bits above it are ignored
    value &= width == 0 ? 0 : ~0u >> (32 - width);
    const unsigned room = 32 - pending_;  // 1 to 32
    if (width < room) {
      word_ = word_ << width | value;
      pending_ += width;
      return;
    }
    const Tav32u earlier = pending_ == 0 ? 0 : word_ << room;
    pending_             = width - room;
    poke(reinterpret_cast<Tav32u*>(dst_), __builtin_bswap32(earlier | value >> pending_));
    dst_ += 4;
    word_ = value;  // of which the low pending_ bits are still to be written
  }

  void finish() {  // the rest of the last byte becomes zero
    if (pending_ == 0) return;
    Tav32u left = word_ << (32 - pending_);
    for (unsigned done = 0; done < pending_; done += 8, left <<= 8) *dst_++ = Tav8u(left >> 24);
  }

 private:
  Tav8u*   dst_;
  unsigned pending_;
  Tav32u   word_ = 0;
};

static TavStatus pack_bits(const Tav32u* src, const Tav32s* srcBitLen, int len, Tav8u* dst, int dstBitOffset,
                           int* dstBitLen) {
  if (const TavStatus bad = check_vector(len, src, srcBitLen, dst, dstBitLen)) return bad;
  if (dstBitOffset < 0) return tavStatusBadSize;

  TavStatus  status = tavStatusOk;
  const auto width  = [&](int i) {
    const Tav32s w = peek(srcBitLen + i);
    if (w < 0 || w > 32) status = tavStatusWarnBitWidth;
    return unsigned(w < 0 ? 0 : w > 32 ? 32 : w);
  };
  int first = 0;  // widths of 0 at the start write nothing: if there are no others, dst is not touched at all
  while (first < len && width(first) == 0) ++first;

  unsigned total = 0;
  if (first < len) {
    bit_writer out(dst, unsigned(dstBitOffset));
    for (int i = first; i < len; ++i) {
      const unsigned w = width(i);
      out.put(peek(src + i), w);
      total += w;
    }
    out.finish();
  }
  poke(dstBitLen, int(total));
  return status;
}

TAV_BIND(Copy_1u, (&copied_bits<from_top, 4>))
TAV_BIND(PackBits_32u8u, &pack_bits)

}  // namespace tav::TAV_VARIANT
