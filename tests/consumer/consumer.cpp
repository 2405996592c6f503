// A small host, C++11: one function on byte texts and one on String objects.
#include <zeph.h>

#include <cstdio>
#include <string>

int main() {
  char kind[9];
  char rest[9];
  Orbane::Zeph_Seperate("ALARM 17 set", kind, rest, 8);
  std::string first = kind;
  std::string wanted = "alarm";
  const bool equal = Orbane::Zeph_Compare_L(first, wanted);
  std::printf("%s: %s, %s\n", Orbane::Zeph_Version_Info(), kind, rest);
  return equal && std::string(rest) == "17 set" ? 0 : 1;
}
