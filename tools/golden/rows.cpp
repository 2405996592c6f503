#include "rows.h"

#include <cstdio>
#include <stdexcept>

namespace zeph_golden {
namespace {

const std::string bar = " | ", arrow = " -> ";

Parts split(const std::string& text, const std::string& between) {
  Parts parts;
  std::size_t at = 0;
  for (std::size_t end; (end = text.find(between, at)) != std::string::npos;) {
    parts.push_back(text.substr(at, end - at));
    at = end + between.size();
  }
  parts.push_back(text.substr(at));
  return parts;
}

std::string unescaped(const std::string& part) {
  std::string text;
  for (std::size_t i = 0; i < part.size(); ++i) {
    if (part.compare(i, 2, "\\x") == 0) {
      text += static_cast<char>(std::stoi(part.substr(i + 2, 2), nullptr, 16));
      i += 3;
    } else {
      text += part[i];
    }
  }
  return text;
}

std::string escaped(const std::string& text) {
  std::string part;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char byte = text[i];
    const bool at_end = i == 0 || i + 1 == text.size();
    if (byte > ' ' && byte < '\x7F' && byte != '\\' && byte != '|' && byte != '>') {
      part += byte;
    } else if (byte == ' ' && !at_end) {
      part += byte;
    } else {
      char code[8];
      std::snprintf(code, sizeof code, "\\x%02X", static_cast<unsigned char>(byte));
      part += code;
    }
  }
  return part;
}

}  // namespace

bool is_row(const std::string& line) {
  return !line.empty() && line[0] != '#';
}

Row parse_row(const std::string& line) {
  const std::size_t end = line.find(arrow);
  if (end == std::string::npos) throw std::invalid_argument("no \" -> \": " + line);
  Parts parts = split(line.substr(0, end), bar);
  Row row{split(parts[0], " "), {}, line.substr(end + arrow.size())};
  for (std::size_t i = 1; i < parts.size(); ++i) row.arguments.push_back(unescaped(parts[i]));
  return row;
}

std::string written(const Parts& parts) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) text += (i == 0 ? "" : bar) + escaped(parts[i]);
  return text;
}

}  // namespace zeph_golden
