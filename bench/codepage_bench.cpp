// Code page conversion against the converters of iconv and ICU. Theirs are open before the clock
// starts, and they fill a String, too, of the largest size that the result can have.
#include <cstddef>
#include <string>

#if ZEPH_BENCH_HAS_ICONV
#include <iconv.h>
#endif
#if ZEPH_BENCH_HAS_ICU
#include <unicode/ucnv.h>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Conversion {
  const char *operation, *from, *to;  // the encodings by the names that both peers know
  char* text;
  std::size_t size, room;
#if ZEPH_BENCH_HAS_ICONV
  iconv_t iconv = {};
#endif
#if ZEPH_BENCH_HAS_ICU
  UConverter *icu_from = nullptr, *icu_to = nullptr;
#endif
};

#if ZEPH_BENCH_HAS_ICONV
std::string by_iconv(Conversion& c) {
  std::string result(c.room, '\0');
  char *in = c.text, *out = result.data();
  std::size_t in_left = c.size, out_left = c.room;
  iconv(c.iconv, &in, &in_left, &out, &out_left);
  result.resize(c.room - out_left);
  return result;
}
#endif

#if ZEPH_BENCH_HAS_ICU
std::string by_icu(Conversion& c) {
  std::string result(c.room, '\0');
  char* out = result.data();
  const char* in = c.text;
  UChar pivot[1024];
  UChar *pivot_from = pivot, *pivot_to = pivot;
  UErrorCode status = U_ZERO_ERROR;
  ucnv_convertEx(c.icu_to, c.icu_from, &out, out + c.room, &in, in + c.size, pivot, &pivot_from,
                 &pivot_to, pivot + 1024, true, true, &status);
  result.resize(static_cast<std::size_t>(out - result.data()));
  return result;
}
#endif

void add_peers(Row& timed, Conversion& c) {
#if ZEPH_BENCH_HAS_ICONV
  if (c.iconv == iconv_t()) c.iconv = iconv_open(c.to, c.from);
  timed.peer("iconv", [&c] { return by_iconv(c); });
#else
  timed.missing_peer("iconv");
#endif
#if ZEPH_BENCH_HAS_ICU
  UErrorCode status = U_ZERO_ERROR;
  if (!c.icu_from) c.icu_from = ucnv_open(c.from, &status);
  if (!c.icu_to) c.icu_to = ucnv_open(c.to, &status);
  timed.peer("ICU ucnv_convertEx", [&c] { return by_icu(c); });
#else
  timed.missing_peer("ICU");
#endif
}

using FromBytes = std::string (*)(const char*);
using FromString = std::string (*)(std::string&);

void add_rows(Conversion made, FromBytes convert, FromString convert_string,
              const std::string& input) {
  Conversion& c = keep(std::move(made));
  Row& bytes = row("codepage", c.operation, input, c.size);
  add_peers(bytes.zeph([&c, convert] { return convert(c.text); }), c);
  std::string& string = keep(std::string(c.text));
  Row& strings = row("codepage", std::string(c.operation) + " String", input, c.size);
  add_peers(strings.zeph([&string, convert_string] { return convert_string(string); }), c);
}

// Code page 936 texts. Common Chinese characters, in no order that a branch could learn.
std::string chinese(std::size_t size) {
  std::string text;
  for (unsigned seed = 1; text.size() + 2 <= size; seed = seed * 1103515245 + 12345) {
    const unsigned n = (seed >> 16) % 3755;
    text += static_cast<char>(0xB0 + n / 94);
    text += static_cast<char>(0xA1 + n % 94);
  }
  return text;
}

std::string repeated(const std::string& part, std::size_t size) {
  std::string text;
  while (text.size() + part.size() <= size) text += part;
  return text;
}

}  // namespace

void register_codepage_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    const struct {
      const char* kind;
      std::string ansi;
    } inputs[] = {
        {"Chinese", chinese(size)},
        {"mixed", repeated("\xCE\xC2\xB6\xC8\xB9\xFD\xB8\xDF: T1=85.5 (limit 80) ", size)},
        {"ASCII", repeated("ALARM 17 set at 12:30:05.250; T1", size)},
    };
    for (const auto& input : inputs) {
      if (input.ansi.empty()) continue;  // one part of it is longer
      // The same text in both directions; as UTF-8 the Chinese one is half as long again.
      const std::string utf8 = Orbane::Zeph_ANSI_to_UTF8(input.ansi.c_str());
      const std::string text = std::string(input.kind) + ", " + size_text(size) + " of ANSI";
      char* const from_utf8 = keep(Places()).text(utf8);
      char* const from_ansi = keep(Places()).text(input.ansi);
      const std::size_t size_utf8 = utf8.size(), size_ansi = input.ansi.size();
      add_rows({"Zeph_UTF8_to_ANSI", "UTF-8", "CP936", from_utf8, size_utf8, size_utf8},
               Orbane::Zeph_UTF8_to_ANSI, Orbane::Zeph_UTF8_to_ANSI, text);
      add_rows({"Zeph_ANSI_to_UTF8", "CP936", "UTF-8", from_ansi, size_ansi, 2 * size_ansi},
               Orbane::Zeph_ANSI_to_UTF8, Orbane::Zeph_ANSI_to_UTF8, text);
    }
  }
}

}  // namespace zeph_bench
