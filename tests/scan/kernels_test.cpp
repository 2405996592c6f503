// Each kernel and its twins against the plainest loop, on ranges between inaccessible pages.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

#include "number/real_format.h"
#include "number/real_format_table.h"
#include "number/wide_product.h"
#include "scan/ascii_fold.h"
#include "scan/ascii_run.h"
#include "scan/byte_mask.h"
#include "scan/copy_text.h"
#include "scan/count_byte.h"
#include "scan/find_byte.h"
#include "scan/find_needle.h"
#include "scan/find_pair.h"
#include "scan/hex_numbers.h"
#include "scan/hex_pairs.h"
#include "scan/last_byte.h"
#include "scan/move_bytes.h"
#include "scan/other_byte.h"
#include "scan/remove_byte.h"
#include "scan/same_text.h"
#include "scan/wide.h"
#include "support/draw.h"
#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "support/table.h"

using namespace zeph_test;
using zeph::HexDigits;
using zeph::LetterCase;

namespace {

#ifdef ZEPH_HAS_AVX2
const bool has_avx2 = zeph::has_avx2();
#endif

// Sizes on both sides of every step of wide instructions, at both edges and apart from them.
template <typename Check>
void each_size(Check check) {
  for (unsigned size = 0; size <= 700; size += size < 200 ? 1 : 41) {
    for (unsigned round = 0; round < 45; ++round) {
      Draw draw(1000 * size + round + 1);
      draw.fix_length(size);
      const Placement places[] = {Edge::back, Edge::front, {Edge::front, draw.below(64)}};
      const ScopedPlacement here(places[round % 3]);
      SCOPED_TRACE(std::to_string(size) + " bytes, round " + std::to_string(round));
      ASSERT_NO_FATAL_FAILURE(check(draw, std::size_t{size}));
    }
  }
}

}  // namespace

TEST(Kernels, FoldsAndHexPairs) {
  each_size([](Draw& draw, std::size_t size) {
    const bool low = draw.yes();
    const LetterCase to = low ? LetterCase::lower : LetterCase::upper;
    const HexDigits digits = low ? HexDigits::lower : HexDigits::upper;
    const char* const names = low ? "0123456789abcdef" : "0123456789ABCDEF";
    const std::string bytes = draw.yes() ? draw.bytes(0) : draw.text(0, "AZaz@[`{\xC4\xE4");
    std::string fold, pairs;
    for (const char byte : bytes) {
      const bool other_case = low ? byte >= 'A' && byte <= 'Z' : byte >= 'a' && byte <= 'z';
      fold += static_cast<char>(byte ^ (other_case ? 0x20 : 0));
      pairs += {names[byte >> 4 & 15], names[byte & 15], ' '};
    }
    const GuardedText in(bytes, End::bare);
    const auto expect_fold = [&](auto put) {
      const GuardedText out(bytes, End::bare);
      put(to, out.data(), in.data(), size);
      ASSERT_EQ(std::string(out.data(), size), fold);
    };
    const auto expect_pairs = [&](auto put) {
      const GuardedBuffer out(3 * size);
      put(digits, out.data(), in.data(), size);
      ASSERT_EQ(std::string(out.data(), 3 * size), pairs);
    };
    expect_fold(zeph::put_ascii_fold);
    expect_fold(zeph::put_ascii_fold_portable);
    expect_fold(zeph::put_ascii_fold_baseline);
    expect_pairs(zeph::put_hex_pairs);
    expect_pairs(zeph::put_hex_pairs_portable);
#ifdef ZEPH_HAS_AVX2
    if (has_avx2 && size >= 8) expect_pairs(zeph::put_hex_pairs_avx2);
    if (!has_avx2 || size < 64) return;
    zeph::put_ascii_fold_avx2(to, in.data(), in.data(), size);
    ASSERT_EQ(std::string(in.data(), size), fold) << "in its place";
#endif
  });
}

#ifdef ZEPH_HAS_AVX512_VBMI2
// As few digits as a byte takes; the last bytes give the room that the stores need.
TEST(Kernels, HexNumbers) {
  if (!zeph::has_avx512_vbmi2()) GTEST_SKIP() << "takes a processor with AVX-512 VBMI2";
  each_size([](Draw& draw, std::size_t size) {
    const std::string bytes =
        draw.yes() ? draw.bytes(0) : draw.text(0, std::string_view("\0\xF\x10z", 4));
    const std::size_t done = size < 32 ? 0 : size / 16 * 16 - 16;
    std::string numbers;
    std::size_t length = 0;
    for (std::size_t i = 0; i < size; ++i) {
      numbers += printed("%x ", bytes[i] & 0xFF);
      if (i + 1 == done) length = numbers.size();
    }
    const GuardedText in(bytes, End::bare);
    const GuardedBuffer out(numbers.size());
    char* end = out.data();
    ASSERT_EQ(zeph::put_hex_numbers_avx512(end, in.data(), size), done);
    ASSERT_EQ(std::string(out.data(), end), numbers.substr(0, length));
  });
}
#endif

// How far two texts are known to be alike: up to their difference or end, less than a step short of
// it.
TEST(Kernels, SameText) {
  each_size([](Draw& draw, std::size_t size) {
    std::string text = draw.text(0, "AZaz@[`{\xC4\xE4"), other = text;
    const bool folded = draw.yes();
    for (char& byte : other) byte = folded && draw.yes() ? lower(byte) : byte;
    std::size_t end = draw.below(2 * size + 1);
    if (end < size) other[end] = draw.yes() ? '\0' : static_cast<char>(other[end] ^ 4);
    if (end < size && draw.yes()) text[end] = other[end] = '\0';
    end = std::min(end, size);
    const GuardedText a(text, End::bare), b(other, End::bare);
    [[maybe_unused]] const auto expect = [&](auto same, std::size_t step) {
      const std::size_t known = same(a.data(), b.data(), size);
      ASSERT_LE(known, end);
      ASSERT_LT(end - known, step);
    };
#ifdef ZEPH_HAS_AVX2
    if (has_avx2) expect(folded ? zeph::same_ascii_text_avx2 : zeph::same_text_avx2, 128);
#endif
#ifdef ZEPH_HAS_AVX512
    if (!zeph::has_avx512()) return;
    expect(folded ? zeph::same_ascii_text_avx512 : zeph::same_text_avx512, 256);
    expect(folded ? zeph::same_ascii_text : zeph::same_text, 256);
#endif
  });
}

// One byte taken out, frequent or rare, or frequent for a while.
TEST(Kernels, RemoveByte) {
  each_size([](Draw& draw, std::size_t size) {
    std::string text = draw.text(0, draw.yes() ? "ab" : "abcdefghijklmnopqrstuvwxyz");
    if (draw.yes()) std::fill_n(text.begin(), size / 2, 'b');
    std::string kept = text;
    kept.erase(std::remove(kept.begin(), kept.end(), 'a'), kept.end());
    for (auto* const remove : {zeph::remove_byte, zeph::remove_byte_portable}) {
      const GuardedText in(text, End::bare);
      ASSERT_EQ(std::string(in.data(), remove(in.data(), size, 'a')), kept);
    }
  });
}

// Places apart, and places that overlap or only touch.
TEST(Kernels, MoveBytes) {
  each_size([](Draw& draw, std::size_t size) {
    const std::string text = draw.bytes(0), twice = text + text;
    const GuardedText in(text, End::bare), both(twice, End::bare);
    const GuardedBuffer out(size);
    zeph::move_bytes(out.data(), in.data(), size);
    ASSERT_EQ(std::string(out.data(), size), text);
    const std::size_t from = draw.below(size + 1), to = draw.yes() ? size - from : from / 2;
    zeph::move_bytes(both.data() + to, both.data() + from, size);
    ASSERT_EQ(std::string(both.data() + to, size), twice.substr(from, size));
  });
  const std::string longer = std::string(10000, 'a') + 'b';
  const GuardedBuffer out(longer.size());
  zeph::move_bytes(out.data(), longer.data(), longer.size());
  EXPECT_EQ(std::string(out.data(), longer.size()), longer);
}

// A text in as much room as it takes, the byte that ends it not counted.
TEST(Kernels, CopyText) {
  each_size([](Draw& draw, std::size_t size) {
    std::string text = draw.text(0, "ab\xFF");
    const std::size_t end = draw.below(2 * size + 1);
    const char stop = draw.yes() ? '\0' : 'c';
    if (end < size) text[end] = draw.yes() ? stop : '\0';
    const std::string expected = text.substr(0, end);
    const GuardedText in(text, End::bare);
    for (auto* const copy : {zeph::copy_text, zeph::copy_text_baseline}) {
      const GuardedBuffer out(expected.size());
      ASSERT_EQ(copy(out.data(), in.data(), size, stop), expected.size());
      ASSERT_EQ(std::string(out.data(), expected.size()), expected);
    }
#ifdef ZEPH_HAS_AVX2
    if (!has_avx2) return;
    const std::size_t steps = expected.size() / 128 * 128;
    const GuardedBuffer out(steps);
    ASSERT_EQ(zeph::copy_text_128_avx2(out.data(), in.data(), size, stop), steps);
    ASSERT_EQ(std::string(out.data(), steps), expected.substr(0, steps));
#endif
  });
}

// The place of the first byte of another kind.
TEST(Kernels, Runs) {
  each_size([](Draw& draw, std::size_t size) {
    const char byte = draw.yes() ? ' ' : '\x7F', other = draw.yes() ? '\x80' : '\xFF';
    std::string text(size, byte);
    const std::size_t at = draw.below(size + 1), back = at < size ? size - 1 - at : size;
    if (at < size) text[at] = other;
    const GuardedText in(text, End::bare), closed(text);
    const char *const begin = in.data(), *const end = begin + size;
    ASSERT_EQ(zeph::ascii_run(begin, end), at);
    for (auto* const copy : {zeph::copy_ascii_run, zeph::copy_ascii_run_portable}) {
      const GuardedBuffer out(at + zeph::ascii_step);
      ASSERT_EQ(copy(out.data(), begin, end), at);
      ASSERT_EQ(std::string(out.data(), at), text.substr(0, at));
    }
    ASSERT_EQ(zeph::run_at_front(begin, size, byte), at);
    ASSERT_EQ(zeph::run_at_back(begin, size, byte), back);
    ASSERT_EQ(zeph::behind_last(begin, size, 'x', other), at < size ? at + 1 : 0);
    ASSERT_EQ(zeph::behind_last_portable(begin, size, other, 'x'), at < size ? at + 1 : 0);
    ASSERT_EQ(zeph::count_byte(begin, size, byte), size - (at < size));
    ASSERT_EQ(zeph::count_runs(closed.data(), size, byte),
              size == 0 ? 0 : (at > 0) + (back > 0) - (at == size));
    ASSERT_EQ(zeph::count_pairs(closed.data(), size, byte, other), at > 0 && at < size);
    ASSERT_EQ(zeph::count_pairs(closed.data(), size, byte, byte),
              at - (at > 0) + (at < size ? back - (back > 0) : 0));
    ASSERT_EQ(zeph::find_known_byte(begin, size, other), at < size ? begin + at : nullptr);
#ifdef ZEPH_HAS_AVX512
    if (zeph::has_avx512() && size >= 64) {
      ASSERT_EQ(zeph::find_byte_avx512(begin, size, other), at < size ? begin + at : nullptr);
    }
#endif
    ASSERT_EQ(zeph::find_byte_or_end(begin, other, size), begin + at);
    ASSERT_EQ(zeph::find_byte_or_end(closed.data(), other), closed.data() + at);
    ASSERT_EQ(zeph::find_byte_or_end(closed.data(), other, size + 99), closed.data() + at);
    ASSERT_EQ(zeph::find_byte_or_end(closed.data(), 'x'), closed.data() + size);
    if (size > zeph::mask_bytes) return;
    const std::uint64_t place = at < size ? std::uint64_t{1} << at : 0;
    const std::uint64_t all = size == 0 ? 0 : ~std::uint64_t{0} >> (64 - size);
    ASSERT_EQ(zeph::byte_mask(begin, size, other), place);
    ASSERT_EQ(zeph::byte_mask_portable(begin, size, byte), all & ~place);
    ASSERT_EQ(zeph::byte_mask(begin, size, byte), all & ~place);
    ASSERT_TRUE(place == 0 || zeph::lowest_place(place) == at);
  });
}

// In a long range: near, at both sides of each step, and nowhere.
TEST(Kernels, FindKnownByte) {
  for (const std::size_t size : {1023u, 1024u, 1060u, 1400u}) {
    const GuardedText none(std::string(size, 'a'), End::bare);
    for (std::size_t at = 0; at < size; at += at < 300 || at > size - 300 ? 1 : 41) {
      std::string text(size, 'a');
      text[at] = text.back() = 'b';
      const GuardedText hit(text, End::bare);
      ASSERT_EQ(zeph::find_known_byte(hit.data(), size, 'b'), hit.data() + at);
    }
    ASSERT_EQ(zeph::find_known_byte(none.data(), size, 'b'), nullptr);
  }
}

// A far byte is looked for in pieces that grow.
TEST(Kernels, FindByteBehindPieces) {
  for (const std::size_t size : {1023u, 1024u, 1025u, 3071u, 3072u, 3073u, 9000u}) {
    const GuardedText hit(std::string(size, 'a') + 'b'), bare(std::string(size, 'a'), End::bare);
    for (const std::size_t most : {size - 1, size, size + 1, size + 5000}) {
      ASSERT_EQ(zeph::find_byte_or_end(hit.data(), 'b', most), hit.data() + std::min(most, size));
    }
    ASSERT_EQ(zeph::find_byte_or_end(hit.data(), 'x', size + 5000), hit.data() + size + 1);
    ASSERT_EQ(zeph::find_byte_or_end(bare.data(), 'b', size), bare.data() + size);
  }
}

// '@' and '`', '[' and '{' differ as the two cases of a letter do.
TEST(Kernels, FindPair) {
  each_size([](Draw& draw, std::size_t size) {
    if (size == 0) return;
    const std::string text =
        draw.text(0, draw.yes() ? "aB@`[{" : "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxaB");
    const auto probe = [&] {
      const char loose = draw.yes() ? ' ' : '\0', byte = draw.yes() ? 'a' : 'B';
      const std::size_t offset = draw.below(std::min<std::size_t>(size, 40));
      return zeph::Probe{offset, static_cast<char>(byte | loose), loose};
    };
    const zeph::ProbePair pair{probe(), probe()};
    const std::size_t count = size - std::max(pair.a.offset, pair.b.offset);
    const std::size_t from = draw.below(count + 1);
    const auto meets = [&](const zeph::Probe& p, std::size_t at) {
      return (text[at + p.offset] | p.loose) == p.byte;
    };
    std::size_t expected = from;
    while (expected < count && !(meets(pair.a, expected) && meets(pair.b, expected))) ++expected;
    const GuardedText in(text, End::bare);
    ASSERT_EQ(zeph::find_pair(in.data(), from, count, pair), expected);
    ASSERT_EQ(zeph::find_pair_portable(in.data(), from, count, pair), expected);
    ASSERT_EQ(zeph::find_pair_baseline(in.data(), from, count, pair), expected);
#ifdef ZEPH_HAS_AVX2
    if (!has_avx2 || count < 32 || from == count) return;
    ASSERT_EQ(zeph::find_pair_avx2(in.data(), from, count, pair), expected);
#endif
  });
}

namespace {

// A fold that is not that of the ASCII letters: 'i' goes with 0xDD and 0xC4 with 0xE4.
char other_fold(char byte) {
  return byte == 'i' ? '\xDD' : byte == '\xE4' ? '\xC4' : byte;
}

void expect_found(const std::string& text, const std::string& needle) {
  static unsigned char table[256];
  for (int i = 0; i < 256; ++i) {
    table[i] = static_cast<unsigned char>(other_fold(static_cast<char>(i)));
  }
  const GuardedText in(text, End::bare), wanted(needle, End::bare);
  const std::string_view haystack(in.data(), in.size()), edged(wanted.data(), wanted.size());
  SCOPED_TRACE(needle + " in " + text);
  ASSERT_EQ(zeph::find_needle(haystack, edged), text.find(needle));
  ASSERT_EQ(zeph::find_needle_portable(haystack, edged), text.find(needle));
  if (!needle.empty() && needle.size() <= text.size() && text.size() <= 64) {
    ASSERT_EQ(zeph::find_short_needle_baseline(haystack, edged), text.find(needle));
  }
  ASSERT_EQ(zeph::find_last_needle(haystack, edged), text.rfind(needle));
  ASSERT_EQ(zeph::find_needle_ignoring_case(haystack, edged), folded(text).find(folded(needle)));
  ASSERT_EQ(zeph::find_needle_by_table(haystack, edged, table),
            folded(text, other_fold).find(folded(needle, other_fold)));
}

}  // namespace

// Pieces of a text, whole, in the other case and with one byte changed.
TEST(Kernels, FindNeedle) {
  each_size([](Draw& draw, std::size_t size) {
    const std::string all("ab@`[{iI\xDD\xC4\xE4Zz\0", 14);
    const std::string alphabet = all.substr(0, 1 + draw.below(14)), text = draw.text(0, alphabet);
    std::string needle = text.substr(draw.below(size + 1), draw.below(draw.yes() ? 6 : 100));
    if (!needle.empty() && draw.yes()) needle[draw.below(needle.size())] ^= 0x20;
    if (!needle.empty() && draw.below(3) == 0) needle.back() = alphabet[0];
    expect_found(text, needle);
  });
}

// Filters do not get through these: runs of one byte, and Fibonacci's word, which repeats in every
// way but a simple one.
TEST(Kernels, FindNeedleInRepetitiveTexts) {
  const std::string a(2000, 'a');
  for (std::size_t size = 1; size < 300; size += 13) {
    expect_found(a + 'b', a.substr(0, size) + 'b');
    expect_found('b' + a, 'b' + a.substr(0, size));
    expect_found(a + 'b' + a, a.substr(0, size) + 'b' + a.substr(0, size / 2));
  }
  std::string word = "a", next = "ab";
  while (word.size() < 6000) word.swap(next += word);
  for (std::size_t size = 10; size < 3000; size += size / 2) {
    std::string needle = word.substr(size / 2, size);
    expect_found(word, needle);
    for (const std::size_t changed : {size / 3, size - 1}) {
      needle[changed] ^= 'a' ^ 'b';
      expect_found(word, needle);
    }
  }
}

TEST(RealFormat, ExponentTrim) {
  each_row(exponent_rows, [](const auto& row) {
    const GuardedText text(row.text);
    zeph::trim_exponent(text.data());
    EXPECT_STREQ(text.data(), row.trimmed);
  });
}

TEST(WideProduct, PortableFormAgrees) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 1000; ++i) {
    const std::uint64_t a = i == 0 ? ~std::uint64_t{0} : random();
    const std::uint64_t b = i == 0 ? a : random() >> random() % 64;
    const zeph::Wide wide = zeph::wide_product(a, b), plain = zeph::wide_product_portable(a, b);
    EXPECT_EQ(plain.low, a * b);
    EXPECT_EQ(wide.low, plain.low);
    EXPECT_EQ(wide.high, plain.high);
  }
}
