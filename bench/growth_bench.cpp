// How the cost grows with the text: each family on texts of 1 KiB to 32 MiB, and on those whose
// documented cost is higher (changes that start again, blanks taken off one by one, patterns that
// nearly meet everywhere).
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

constexpr std::size_t sizes[] = {1024, 32768, 1048576, 33554432};

std::string repeated(const std::string& part, std::size_t size) {
  std::string text;
  text.reserve(size + part.size());
  while (text.size() < size) text += part;
  text.resize(size);
  return text;
}

// `make(size)` gives the operation; what it works on is held by the operation's own keep().
template <typename Make>
void grow(const char* family, const char* operation, Make make) {
  for (const std::size_t size : sizes) {
    row(family, operation, size_text(size), size).point_of_growth().zeph(make(size));
  }
}

// An operation on a fresh copy of a text; the copy is part of every figure.
template <typename Change>
auto on_a_copy(const std::string& part, Change change) {
  return [part, change](std::size_t size) {
    Places& places = keep(Places());
    const char* const source = places.text(repeated(part, size));
    char* const work = places.room(size + 1);
    return [source, work, size, change] {
      std::memcpy(work, source, size + 1);
      change(work);
      return work[0];
    };
  };
}

// An operation that only reads.
template <typename Read>
auto on_a_text(const std::string& part, Read read) {
  return [part, read](std::size_t size) {
    const char* const source = keep(Places()).text(repeated(part, size));
    return [source, read, size] { return read(source, size); };
  };
}

// An operation that reads a text and writes to rooms of its size: their number goes with it.
template <std::size_t rooms, typename Write>
auto to_rooms(const std::string& part, Write write) {
  return [part, write](std::size_t size) {
    Places& places = keep(Places());
    char* const source = places.text(repeated(part, size));
    std::array<char*, rooms> outs;
    for (char*& out : outs) out = places.room(size + 32);
    return [source, outs, size, write] { return write(source, outs, size), outs[0][0]; };
  };
}

// What the rest is measured by.
void register_machine() {
  grow("machine", "memcpy",
       to_rooms<1>("m", [](const char* text, const auto& outs, std::size_t size) {
         std::memcpy(outs[0], text, size);
       }));
  grow("machine", "memchr", on_a_text("m", [](const char* text, std::size_t size) {
         return std::memchr(text, '\n', size) != nullptr;
       }));
}

void register_plain() {
  const std::string prose = "Chamber Pressure 0.75 mTorr; ", list = "item,";
  grow("search", "Zeph_Find_Position", on_a_text(prose, [](const char* text, std::size_t) {
         return Orbane::Zeph_Find_Position(text, "Pressed");
       }));
  grow("search", "Zeph_Find_Position_L", on_a_text(prose, [](const char* text, std::size_t) {
         return Orbane::Zeph_Find_Position_L(text, "pressed");
       }));
  grow("compare", "Zeph_Compare_L", on_a_text(prose, [](const char* text, std::size_t) {
         return Orbane::Zeph_Compare_L(text, text);
       }));
  grow("normalise", "Zeph_Lower", on_a_copy(prose, [](char* text) { Orbane::Zeph_Lower(text); }));
  grow("fields", "Zeph_Seperate_Char, 2",
       to_rooms<2>("value", [](const char* text, const auto& outs, std::size_t size) {
         Orbane::Zeph_Seperate_Char(text, ',', outs[0], outs[1], static_cast<int>(size));
       }));
  grow("fields", "Zeph_Seperate_Char_Get_Index", on_a_text(list, [](const char* text, std::size_t) {
         return Orbane::Zeph_Seperate_Char_Get_Index(text, ',', "none");
       }));
  grow("rewrite", "Zeph_To_Ascii", on_a_text(prose, [](const char* text, std::size_t size) {
         static char* block = nullptr;
         return Orbane::Zeph_To_Ascii(text, static_cast<int>(size), &block)[0];
       }));
  grow("codepage", "Zeph_ANSI_to_UTF8",
       on_a_text("\xCE\xC2\xB6\xC8 ", [](const char* text, std::size_t) {
         return Orbane::Zeph_ANSI_to_UTF8(text).size();
       }));
  grow("codepage", "Zeph_UTF8_to_ANSI",
       on_a_text("\xE6\xB8\xA9\xE5\xBA\xA6 ", [](const char* text, std::size_t) {
         return Orbane::Zeph_UTF8_to_ANSI(text).size();
       }));
  grow("cipher", "Zeph_Encrypt", to_rooms<1>(prose, [](char* text, const auto& outs, std::size_t) {
         Orbane::Zeph_Encrypt(text, outs[0]);
       }));
}

void register_strings() {
  grow("lists", "Zeph_Split", [](std::size_t size) {
    const std::string& text = keep(repeated("item,", size));
    return [&text] {
      std::vector<std::string> items;
      Orbane::Zeph_Split(text, ',', items);
      return items.size();
    };
  });
  grow("rewrite", "Zeph_Remove a byte", [](std::size_t size) {
    const std::string& source = keep(repeated("item,", size));
    std::string& work = keep(std::string());
    return [&source, &work] {
      work = source;
      Orbane::Zeph_Remove(work, ',');
      return work.size();
    };
  });
  grow("slices", "Zeph_Right, a..a, ba..a", [](std::size_t size) {
    const std::string& text = keep(std::string(size, 'a'));
    std::string& out = keep(std::string());
    return [&text, &out] {
      static const std::string marker = 'b' + std::string(64, 'a');
      Orbane::Zeph_Right(text, marker, out);
      return out.size();
    };
  });
}

void register_adversarial() {
  static const std::string pattern = std::string(64, 'a') + 'b';
  grow("search", "Zeph_Find_Position, a..a, a..ab",
       on_a_text("a", [](const char* text, std::size_t) {
         return Orbane::Zeph_Find_Position(text, pattern.c_str());
       }));
  grow("search", "Zeph_Find_Position_L, a..a, a..ab",
       on_a_text("a", [](const char* text, std::size_t) {
         return Orbane::Zeph_Find_Position_L(text, pattern.c_str());
       }));
  grow("normalise", "Zeph_Trimed, blanks",
       on_a_copy(" ", [](char* text) { Orbane::Zeph_Trimed(text); }));
  grow("fields", "Zeph_Seperate_Reverse, blanks",
       to_rooms<2>(" ", [](char* text, const auto& outs, std::size_t) {
         Orbane::Zeph_Seperate_Reverse(text, outs[0], outs[1]);
       }));
  grow("rewrite", "Zeph_Replace byte text, ab -> c",
       on_a_copy("ab", [](char* text) { Orbane::Zeph_Replace(text, "ab", "c"); }));
  grow("rewrite", "Zeph_Remove byte text, nested aabb", [](std::size_t size) {
    Places& places = keep(Places());
    const char* const source = places.text(std::string(size / 2, 'a') + std::string(size / 2, 'b'));
    char* const work = places.room(size + 1);
    return [source, work, size] {
      std::memcpy(work, source, size + 1);
      Orbane::Zeph_Remove(work, "ab");
      return work[0];
    };
  });
}

}  // namespace

void register_growth_rows() {
  register_machine();
  register_plain();
  register_strings();
  register_adversarial();
}

}  // namespace zeph_bench
