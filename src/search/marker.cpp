// What stands in front of the first and behind the last occurrence of a marker.
#include <string_view>

#include "scan/find_needle.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

View view_of(const char& byte) {
  return View(&byte, 1);
}

View left_of(View text, View marker) {
  return text.substr(0, find_needle(text, marker));
}

View right_of(View text, View marker) {
  const std::size_t at = find_last_needle(text, marker);
  return at == View::npos ? text : text.substr(at + marker.size());
}

}  // namespace
}  // namespace zeph

namespace Orbane {

std::string Zeph_Left(const std::string& text, const std::string& marker) {
  return std::string(zeph::left_of(text, marker));
}

std::string Zeph_Left(const std::string& text, char marker) {
  return std::string(zeph::left_of(text, zeph::view_of(marker)));
}

void Zeph_Left(const std::string& text, const std::string& marker, std::string& out) {
  out.assign(zeph::left_of(text, marker));
}

void Zeph_Left(const std::string& text, char marker, std::string& out) {
  out.assign(zeph::left_of(text, zeph::view_of(marker)));
}

std::string Zeph_Right(const std::string& text, const std::string& marker) {
  return std::string(zeph::right_of(text, marker));
}

std::string Zeph_Right(const std::string& text, char marker) {
  return std::string(zeph::right_of(text, zeph::view_of(marker)));
}

void Zeph_Right(const std::string& text, const std::string& marker, std::string& out) {
  out.assign(zeph::right_of(text, marker));
}

void Zeph_Right(const std::string& text, char marker, std::string& out) {
  out.assign(zeph::right_of(text, zeph::view_of(marker)));
}

}  // namespace Orbane
