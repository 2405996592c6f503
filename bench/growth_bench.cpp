// How the cost grows with the text: each family on texts of 1 KiB to 32 MiB, and on those whose
// documented cost is higher (changes that start again, blanks taken off one by one, patterns that
// nearly meet everywhere).
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

// Texts and their copies start half a page apart: at the same place in their pages each store would
// meet the loads behind it.
constexpr std::size_t apart = 2048;

// An operation on a fresh copy of a text; the copy is part of every figure.
template <typename Change>
auto on_a_copy(const std::string& part, Change change) {
  return [part, change](std::size_t size) {
    std::string& work = keep(repeated(part, size));
    const std::string& source = keep(std::string(apart, ' ') + work);
    return [&source, &work, change] {
      std::memcpy(work.data(), source.data() + apart, work.size());
      work[work.size()] = '\0';
      change(work);
      return work.data()[0];
    };
  };
}

// An operation that only reads.
template <typename Read>
auto on_a_text(const std::string& part, Read read) {
  return [part, read](std::size_t size) {
    const std::string& source = keep(repeated(part, size));
    return [&source, read] { return read(source); };
  };
}

// What the rest is measured by.
void register_machine() {
  grow("machine", "memcpy", [](std::size_t size) {
    std::string& to = keep(std::string(size, ' '));
    const std::string& from = keep(std::string(apart + size, 'm'));
    return
        [&from, &to] { return std::memcpy(to.data(), from.data() + apart, to.size()) != nullptr; };
  });
  grow("machine", "memchr", on_a_text("m", [](const std::string& text) {
         return std::memchr(text.data(), '\n', text.size()) != nullptr;
       }));
}

void register_plain() {
  const std::string prose = "Chamber Pressure 0.75 mTorr; ", list = "item,";
  grow("search", "Zeph_Find_Position", on_a_text(prose, [](const std::string& text) {
         return Orbane::Zeph_Find_Position(text.c_str(), "Pressed");
       }));
  grow("search", "Zeph_Find_Position_L", on_a_text(prose, [](const std::string& text) {
         return Orbane::Zeph_Find_Position_L(text.c_str(), "pressed");
       }));
  grow("compare", "Zeph_Compare_L", on_a_text(prose, [](const std::string& text) {
         return Orbane::Zeph_Compare_L(text.c_str(), text.c_str());
       }));
  grow("normalise", "Zeph_Lower",
       on_a_copy(prose, [](std::string& text) { Orbane::Zeph_Lower(text.data()); }));
  grow("fields", "Zeph_Seperate_Char, 2", on_a_text("value", [](const std::string& text) {
         static std::string first(sizes[3] + 1, '\0'), second(sizes[3] + 1, '\0');
         Orbane::Zeph_Seperate_Char(text.c_str(), ',', first.data(), second.data(),
                                    static_cast<int>(sizes[3]));
         return first[0];
       }));
  grow("fields", "Zeph_Seperate_Char_Get_Index", on_a_text(list, [](const std::string& text) {
         return Orbane::Zeph_Seperate_Char_Get_Index(text.c_str(), ',', "none");
       }));
  grow("lists", "Zeph_Split", on_a_text(list, [](const std::string& text) {
         std::vector<std::string> items;
         Orbane::Zeph_Split(text, ',', items);
         return items.size();
       }));
  grow("rewrite", "Zeph_Remove a byte", on_a_copy(list, [](std::string& text) {
         const std::size_t size = text.size();
         Orbane::Zeph_Remove(text, ',');
         text.resize(size);
       }));
  grow("rewrite", "Zeph_To_Ascii", on_a_text(prose, [](const std::string& text) {
         static char* block = nullptr;
         return Orbane::Zeph_To_Ascii(text.data(), static_cast<int>(text.size()), &block)[0];
       }));
  grow("codepage", "Zeph_ANSI_to_UTF8", on_a_text("\xCE\xC2\xB6\xC8 ", [](const std::string& text) {
         return Orbane::Zeph_ANSI_to_UTF8(text.c_str()).size();
       }));
  grow("codepage", "Zeph_UTF8_to_ANSI",
       on_a_text("\xE6\xB8\xA9\xE5\xBA\xA6 ", [](const std::string& text) {
         return Orbane::Zeph_UTF8_to_ANSI(text.c_str()).size();
       }));
  grow("cipher", "Zeph_Encrypt", on_a_copy(prose, [](std::string& text) {
         static std::string record(sizes[3] + 32, '\0');
         Orbane::Zeph_Encrypt(text.data(), record.data());
       }));
}

void register_adversarial() {
  grow("search", "Zeph_Find_Position, a..a, a..ab", on_a_text("a", [](const std::string& text) {
         static const std::string pattern = std::string(64, 'a') + 'b';
         return Orbane::Zeph_Find_Position(text.c_str(), pattern.c_str());
       }));
  grow("search", "Zeph_Find_Position_L, a..a, a..ab", on_a_text("a", [](const std::string& text) {
         static const std::string pattern = std::string(64, 'a') + 'b';
         return Orbane::Zeph_Find_Position_L(text.c_str(), pattern.c_str());
       }));
  grow("slices", "Zeph_Right, a..a, ba..a", on_a_text("a", [](const std::string& text) {
         static const std::string marker = 'b' + std::string(64, 'a');
         static std::string out;
         Orbane::Zeph_Right(text, marker, out);
         return out.size();
       }));
  grow("normalise", "Zeph_Trimed, blanks",
       on_a_copy(" ", [](std::string& text) { Orbane::Zeph_Trimed(text.data()); }));
  grow("fields", "Zeph_Seperate_Reverse, blanks", on_a_copy(" ", [](std::string& text) {
         static std::string first(sizes[3] + 1, '\0'), second(sizes[3] + 1, '\0');
         Orbane::Zeph_Seperate_Reverse(text.data(), first.data(), second.data());
       }));
  grow("rewrite", "Zeph_Replace byte text, ab -> c",
       on_a_copy("ab", [](std::string& text) { Orbane::Zeph_Replace(text.data(), "ab", "c"); }));
  grow("rewrite", "Zeph_Remove byte text, nested aabb", [](std::size_t size) {
    const std::string& source = keep(std::string(size / 2, 'a') + std::string(size / 2, 'b'));
    std::string& work = keep(std::string(source));
    return [&source, &work] {
      std::memcpy(work.data(), source.data(), source.size() + 1);
      Orbane::Zeph_Remove(work.data(), "ab");
      return work[0];
    };
  });
}

}  // namespace

void register_growth_rows() {
  register_machine();
  register_plain();
  register_adversarial();
}

}  // namespace zeph_bench
