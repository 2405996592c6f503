// Each kernel and its twins against the plainest loop, on ranges between inaccessible pages.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "scan/ascii_fold.h"
#include "scan/ascii_run.h"
#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/find_needle.h"
#include "scan/find_pair.h"
#include "scan/hex_pairs.h"
#include "scan/move_bytes.h"
#include "scan/other_byte.h"
#include "scan/wide.h"
#include "support/draw.h"
#include "support/fold.h"
#include "support/guarded_buffer.h"

using namespace zeph_test;
using zeph::LetterCase;

namespace {

// Sizes on both sides of every step of wide instructions, at both edges and apart from them.
template <typename Check>
void each_size(int rounds, Check check) {
  for (std::size_t size = 0; size <= 200; ++size) {
    for (int round = 0; round < rounds; ++round) {
      Draw draw(static_cast<unsigned>(1000 * size) + static_cast<unsigned>(round) + 1);
      draw.fix_length(size);
      const Placement places[] = {Edge::back, Edge::front, {Edge::front, draw.below(64)}};
      const ScopedPlacement here(places[round % 3]);
      SCOPED_TRACE(std::to_string(size) + " bytes, round " + std::to_string(round));
      ASSERT_NO_FATAL_FAILURE(check(draw, size));
    }
  }
}

#ifdef ZEPH_HAS_AVX2
const bool wide = zeph::has_avx2();
#endif

}  // namespace

TEST(Kernels, FoldOfTheAsciiLetters) {
  each_size(6, [](Draw& draw, std::size_t size) {
    const LetterCase to = draw.yes() ? LetterCase::lower : LetterCase::upper;
    const std::string bytes = draw.text(0, draw.yes() ? "" : "AZaz@[`{\xC4\xE4");
    const char first = to == LetterCase::lower ? 'A' : 'a';
    std::string expected = bytes;
    for (char& byte : expected) {
      if (byte >= first && byte <= first + 25) byte ^= 0x20;
    }
    const auto expect = [&](auto fold) {
      const GuardedText source(bytes, End::bare);
      const GuardedBuffer out(size);
      fold(to, out.data(), source.data(), size);
      fold(to, source.data(), source.data(), size);
      ASSERT_EQ(std::string(out.data(), size), expected);
      ASSERT_EQ(std::string(source.data(), size), expected);
    };
    expect(zeph::put_ascii_fold);
    expect(zeph::put_ascii_fold_portable);
#ifdef ZEPH_HAS_AVX2
    if (wide && size >= 64) expect(zeph::put_ascii_fold_avx2);
#endif
  });
}

TEST(Kernels, AsciiRun) {
  each_size(40, [](Draw& draw, std::size_t size) {
    std::string text(size, draw.yes() ? 'a' : '\x7F');
    const std::size_t at = draw.below(size + 1);
    if (at < size) text[at] = draw.yes() ? '\x80' : '\xFF';
    const GuardedText in(text, End::bare);
    const char *const begin = in.data(), *const end = begin + size;
    ASSERT_EQ(zeph::ascii_run(begin, end), at);
    ASSERT_EQ(zeph::ascii_run_portable(begin, end), at);
    for (auto* const copy : {zeph::copy_ascii_run, zeph::copy_ascii_run_portable}) {
      const GuardedBuffer out(at + zeph::ascii_step);
      ASSERT_EQ(copy(out.data(), begin, end), at);
      ASSERT_EQ(std::string(out.data(), at), text.substr(0, at));
    }
  });
}

TEST(Kernels, ByteMask) {
  each_size(40, [](Draw& draw, std::size_t size) {
    if (size > zeph::mask_bytes) return;
    const char byte = draw.yes() ? ' ' : static_cast<char>(draw.byte());
    std::string text = draw.text(0, draw.yes() ? " !" : "");
    for (char& other : text) {
      if (draw.yes()) other = static_cast<char>(byte ^ (draw.yes() ? 0x80 : 1));
      if (draw.yes()) other = byte;
    }
    std::uint64_t expected = 0;
    for (std::size_t i = size; i-- > 0;) expected = expected << 1 | (text[i] == byte);
    const GuardedText in(text, End::bare);
    ASSERT_EQ(zeph::byte_mask(in.data(), size, byte), expected);
    ASSERT_EQ(zeph::byte_mask_portable(in.data(), size, byte), expected);
    if (expected != 0) {
      ASSERT_EQ(zeph::lowest_place(expected), text.find(byte));
    }
  });
}

// Nothing behind the deciding byte is read: the room ends with it.
TEST(Kernels, FindByteOrEnd) {
  each_size(6, [](Draw& draw, std::size_t size) {
    if (size > 130) size = 130 + (size - 130) * 57;
    const std::string plain(size, 'a');
    const GuardedText hit(plain + '\xC4', End::bare), miss(plain), full(plain, End::bare);
    ASSERT_EQ(zeph::find_byte_or_end(hit.data(), '\xC4'), hit.data() + size);
    ASSERT_EQ(zeph::find_byte_or_end(miss.data(), '\xC4'), miss.data() + size);
    ASSERT_EQ(zeph::find_byte_or_end(miss.data(), '\0'), miss.data() + size);
    ASSERT_EQ(zeph::find_byte_or_end(full.data(), 'b', size), full.data() + size);
    const std::size_t most = draw.below(size + 2), at = std::min(most, size);
    ASSERT_EQ(zeph::find_byte_or_end(hit.data(), '\xC4', most), hit.data() + at);
    ASSERT_EQ(zeph::find_byte_or_end(miss.data(), '\xC4', size + 1000), miss.data() + size);
    ASSERT_EQ(zeph::find_byte_or_end(miss.data(), '\xC4', most), miss.data() + at);
  });
}

TEST(Kernels, RunsOfOneByte) {
  each_size(60, [](Draw& draw, std::size_t size) {
    std::string text(size, ' ');
    const std::size_t run = draw.below(size + 1);
    if (run < size) text[run] = draw.yes() ? '\0' : '\xA0';
    const GuardedText in(text, End::bare);
    const std::size_t back = run < size ? size - 1 - run : size;
    ASSERT_EQ(zeph::run_at_front(in.data(), size, ' '), run);
    ASSERT_EQ(zeph::run_at_front_portable(in.data(), size, ' '), run);
    ASSERT_EQ(zeph::run_at_back(in.data(), size, ' '), back);
    ASSERT_EQ(zeph::run_at_back_portable(in.data(), size, ' '), back);
  });
}

// At every distance that overlaps or touches.
TEST(Kernels, MoveBytes) {
  std::string pattern;
  for (int i = 0; i < 400; ++i) pattern += static_cast<char>(i * 7 + 1);
  for (std::size_t size = 0; size <= 130; ++size) {
    for (std::size_t to = 0; to <= 260; ++to) {
      std::string expected = pattern, moved = pattern;
      expected.replace(to, size, pattern.substr(130, size));
      zeph::move_bytes(&moved[to], &moved[130], size);
      ASSERT_EQ(moved, expected) << size << " bytes to " << to;
    }
  }
}

TEST(Kernels, HexPairs) {
  each_size(4, [](Draw& draw, std::size_t size) {
    const auto digits = draw.yes() ? zeph::HexDigits::upper : zeph::HexDigits::lower;
    const char* const names =
        digits == zeph::HexDigits::upper ? "0123456789ABCDEF" : "0123456789abcdef";
    const std::string bytes = draw.bytes(0);
    std::string expected;
    for (const char byte : bytes) {
      expected += {names[byte >> 4 & 15], names[byte & 15], ' '};
    }
    const auto expect = [&](auto put) {
      const GuardedText in(bytes, End::bare);
      const GuardedBuffer out(3 * size);
      put(digits, out.data(), in.data(), size);
      ASSERT_EQ(std::string(out.data(), 3 * size), expected);
    };
    expect(zeph::put_hex_pairs);
    expect(zeph::put_hex_pairs_portable);
#ifdef ZEPH_HAS_AVX2
    if (wide && size % 16 == 0) expect(zeph::put_hex_pairs_avx2);
#endif
  });
}

// '@' and '`', '[' and '{' differ as the two cases of a letter do.
TEST(Kernels, FindPair) {
  each_size(60, [](Draw& draw, std::size_t size) {
    const std::string text =
        draw.text(0, draw.yes() ? "aB@`[{" : "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxaB");
    const auto probe = [&] {
      const char loose = draw.yes() ? ' ' : '\0';
      return zeph::Probe{draw.below(std::min<std::size_t>(size, 40)),
                         static_cast<char>("aB"[draw.below(2)] | loose), loose};
    };
    if (size == 0) return;
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
#ifdef ZEPH_HAS_AVX2
    if (wide && count >= 32 && from < count) {
      ASSERT_EQ(zeph::find_pair_avx2(in.data(), from, count, pair), expected);
    }
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
  ASSERT_EQ(zeph::find_last_needle(haystack, edged), text.rfind(needle));
  ASSERT_EQ(zeph::find_needle_ignoring_case(haystack, edged), folded(text).find(folded(needle)));
  ASSERT_EQ(zeph::find_needle_by_table(haystack, edged, table),
            folded(text, other_fold).find(folded(needle, other_fold)));
}

}  // namespace

// Pieces of a text, whole, in the other case and with one byte changed.
TEST(Kernels, FindNeedle) {
  each_size(60, [](Draw& draw, std::size_t size) {
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
