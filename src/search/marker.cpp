// What stands in front of the first and behind the last occurrence of a marker.
#include <algorithm>
#include <string_view>

#include "frame/string_pieces.h"
#include "scan/find_needle.h"
#include "scan/last_byte.h"
#include "zeph.h"

namespace zeph {
namespace {

using String = std::string;
using View = std::string_view;

std::size_t first_place(const String& text, const String& marker) {
  const bool one_look = text.size() <= 16 && marker.size() <= text.size() && !marker.empty();
  return one_look ? find_short_needle_baseline(text, marker) : find_needle(text, marker);
}

View in_front(const String& text, std::size_t at) {
  return View(text.data(), std::min(at, text.size()));
}

View left_of(const String& text, const String& marker) {
  return in_front(text, first_place(text, marker));
}

View left_of(const String& text, char marker) {
  return in_front(text, place_of(text, marker));
}

View behind(const String& text, std::size_t at) {
  return View(text.data() + at, text.size() - at);
}

View right_of(const String& text, const String& marker) {
  const std::size_t at = find_last_needle(text, marker);
  return behind(text, at == View::npos ? 0 : at + marker.size());
}

View right_of(const String& text, char marker) {
  return behind(text, behind_last(text.data(), text.size(), marker));
}

String made_of(View piece) {
  return make_string(piece.data(), piece.size());
}

void put(String& out, View piece) {
  put_string(out, piece.data(), piece.size());
}

}  // namespace
}  // namespace zeph

namespace Orbane {

std::string Zeph_Left(const std::string& text, const std::string& marker) {
  return zeph::made_of(zeph::left_of(text, marker));
}

std::string Zeph_Left(const std::string& text, char marker) {
  return zeph::made_of(zeph::left_of(text, marker));
}

void Zeph_Left(const std::string& text, const std::string& marker, std::string& out) {
  zeph::put(out, zeph::left_of(text, marker));
}

void Zeph_Left(const std::string& text, char marker, std::string& out) {
  zeph::put(out, zeph::left_of(text, marker));
}

std::string Zeph_Right(const std::string& text, const std::string& marker) {
  return zeph::made_of(zeph::right_of(text, marker));
}

std::string Zeph_Right(const std::string& text, char marker) {
  return zeph::made_of(zeph::right_of(text, marker));
}

void Zeph_Right(const std::string& text, const std::string& marker, std::string& out) {
  zeph::put(out, zeph::right_of(text, marker));
}

void Zeph_Right(const std::string& text, char marker, std::string& out) {
  zeph::put(out, zeph::right_of(text, marker));
}

}  // namespace Orbane
