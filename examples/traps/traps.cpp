// What callers trip over, each trap shown by calls and their results.
//
//     traps               prints the calls and results
//     traps --check FILE  compares them with the lines of the page FILE that hold "  ->  ": every
//                         line must stand in both; status 1 and the difference if not
#include <zeph.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Orbane;

namespace {

std::vector<std::string> lines;

std::string shown(const std::string& text) {
  return '"' + text + '"';
}
std::string shown(const char* text) {
  return shown(std::string(text));
}
std::string shown(bool value) {
  return value ? "true" : "false";
}
std::string shown(int value) {
  return std::to_string(value);
}
std::string shown(double value) {
  return Zeph_Splicing(64, "%g", value);
}

template <typename... Values>
void show(const char* call, const Values&... results) {
  std::string line = call;
  line += "  ->  ";
  const char* separator = "";
  ((line += separator + shown(results), separator = ", "), ...);
  lines.push_back(line);
}

void show_buffers() {
  char* held = nullptr;
  Zeph_Copy_Mem(&held, "hello");
  char* const block = held;
  Zeph_Copy_Mem(&held, "abc");
  show("Zeph_Copy_Mem: \"abc\" over \"hello\" keeps the block", held == block);
  Zeph_Release_Mem(&held);
  char text[4];
  const bool reported = Zeph_Copy_Stack(text, "abcdef", 4);
  show("Zeph_Copy_Stack(text, \"abcdef\", 4), text", reported, text);
}

void show_comparison() {
  std::string a("ab\0x", 4), b("ab\0y", 4);
  show("Zeph_Compare(\"abcX\", \"abcY\", 3)", Zeph_Compare("abcX", "abcY", 3));
  show("Zeph_Compare(\"abcX\", \"abcY\", -1)", Zeph_Compare("abcX", "abcY", -1));
  show("Zeph_Compare of Strings \"ab\\0x\" and \"ab\\0y\"", Zeph_Compare(a, b));
}

void show_slices() {
  char out[8] = "held";
  std::string text;
  show("Zeph_Find_Position(\"hello\", \"\")", Zeph_Find_Position("hello", ""));
  show("Zeph_Find_Position(\"hello\", 0, 4, \"lo\")", Zeph_Find_Position("hello", 0, 4, "lo"));
  const bool strict = Zeph_Get_SubString("abc", 3, 1, out);
  show("Zeph_Get_SubString(\"abc\", 3, 1, out), out", strict, out);
  Zeph_Ext_Str_From_Str(std::string("abc"), 3, 1, text);
  show("Zeph_Ext_Str_From_Str(String \"abc\", 3, 1, out), out", text);
  show("Zeph_Get_SubString(\")a(b)\", '(', ')', out)",
       Zeph_Get_SubString(std::string(")a(b)"), '(', ')', text));
  show("Zeph_Left(\"a=b=c\", '=')", Zeph_Left("a=b=c", '='));
  show("Zeph_Right(\"a=b=c\", '=')", Zeph_Right("a=b=c", '='));
  show("Zeph_Left(\"abc\", 'x')", Zeph_Left("abc", 'x'));
}

void show_fields() {
  char a[17], b[17], c[17];
  Zeph_Seperate("red  green", a, b, c, 16);
  show("Zeph_Seperate(\"red  green\", a, b, c, 16)", a, b, c);
  Zeph_Seperate_Char("red  green", ' ', a, b, c, 16);
  show("Zeph_Seperate_Char(\"red  green\", ' ', a, b, c, 16)", a, b, c);
  Zeph_Seperate("red blue cyan", a, b, c, 4);
  show("Zeph_Seperate(\"red blue cyan\", a, b, c, 4)", a, b, c);
  Zeph_Seperate_Char("red,blue,cyan", ',', a, b, c, 4);
  show("Zeph_Seperate_Char(\"red,blue,cyan\", ',', a, b, c, 4)", a, b, c);
  char text[] = "red green";
  Zeph_Seperate_Reverse(text, a, b, c);
  show("Zeph_Seperate_Reverse(\"red green\", a, b, c)", a, b, c);
  Zeph_Seperate_Char_With_Index(",red", ',', a, 0, 16);
  show("Zeph_Seperate_Char_With_Index(\",red\", ',', a, 0, 16)", a);
  show("Zeph_Seperate_Char_Get_Index(\",red\", ',', \"red\")",
       Zeph_Seperate_Char_Get_Index(",red", ',', "red"));
  std::vector<std::string> list;
  Zeph_Split("red,,green,", ',', list);
  show("Zeph_Join of Zeph_Split(\"red,,green,\", ',')", Zeph_Join(list, ','));
}

void show_numbers() {
  int value = 7;
  double real = 7;
  bool read = Zeph_To_Int("-12a", &value);
  show("Zeph_To_Int(\"-12a\", &value), value", read, value);
  read = Zeph_To_Double("1x", &real);
  show("Zeph_To_Double(\"1x\", &real) with 7 in it, real", read, real);
  read = Zeph_To_Int("99", 5, 5, &value);
  show("Zeph_To_Int(\"99\", 5, 5, &value)", read);
  show("Zeph_Double_Check(\"-1e-5\")", Zeph_Double_Check("-1e-5"));
  show("Zeph_Double_Check(\"1e-5\")", Zeph_Double_Check("1e-5"));
  show("Zeph_Ext_Int_From_Str(\"0x1F\", 0, 4)", Zeph_Ext_Int_From_Str("0x1F", 0, 4));
  show("Zeph_HexStr_to_DecInt(\"0x1F\")", Zeph_HexStr_to_DecInt("0x1F"));
  char text[64];
  Zeph_Conv_Dbl_To_Str(2.5, 0, text);
  show("Zeph_Conv_Dbl_To_Str(2.5, 0, text)", text);
}

void show_rewriting() {
  char bytes[] = "aaabb", quoted[] = "\"ab";
  std::string string = "aaabb", half = "\"ab";
  Zeph_Replace(bytes, "ab", "b");
  Zeph_Replace(string, std::string("ab"), std::string("b"));
  show("Zeph_Replace(byte text \"aaabb\", \"ab\", \"b\")", bytes);
  show("Zeph_Replace(String \"aaabb\", \"ab\", \"b\")", string);
  Zeph_String_Check(quoted);
  Zeph_String_Check(half);
  show("Zeph_String_Check(byte text of a quote and ab)", std::strlen(quoted) == 3);
  show("Zeph_String_Check(String of a quote and ab)", half);
  show("Zeph_Splicing(4, \"%s\", \"abcdef\")", Zeph_Splicing(4, "%s", "abcdef"));
  char alarm[512] = "x|";
  Zeph_Strcat_Alarm_Append_Text(alarm, "|y");
  show("Zeph_Strcat_Alarm_Append_Text(\"x|\", \"|y\")", alarm);
  char* dump = nullptr;
  show("Zeph_To_Ascii(\"\\n\")", Zeph_To_Ascii("\n"));
  show("Zeph_To_Ascii(\"\\n\", &dump)", Zeph_To_Ascii("\n", &dump));
  Zeph_Release_Mem(&dump);
  show("Zeph_Check_SxxFxx(\"S-F1\", ...)", Zeph_Check_SxxFxx("S-F1", nullptr, nullptr));
}

void show_values() {
  char record[48], text[17] = "";
  std::strcpy(text, "sixteen bytes 16");
  const unsigned long sealed = Zeph_Encrypt(text, record);
  std::memset(text, '#', sizeof text);
  Zeph_Decrypt(record, text);
  show("Zeph_Decrypt of a text of 16 bytes ends it with a zero byte", text[sealed] == '\0');
  show("Zeph_Seconds_To_Time2(1.001)", Zeph_Seconds_To_Time2(1.001));
  show("Zeph_Seconds_To_Time(-5.0)", Zeph_Seconds_To_Time(-5.0));
  show("Zeph_Get_Time() == Zeph_Get_Time()", Zeph_Get_Time() == Zeph_Get_Time());
}

// The lines of the page that show a result.
std::vector<std::string> lines_of(const char* page) {
  std::ifstream file(page);
  std::vector<std::string> found;
  for (std::string line; std::getline(file, line);) {
    Zeph_Del_HeadSpace(line);
    if (Zeph_Find_SubString(line.c_str(), "  ->  ")) found.push_back(line);
  }
  return found;
}

int check(const char* page) {
  const std::vector<std::string> found = lines_of(page);
  const auto report = [](const auto& these, const auto& those, const char* what) {
    int missing = 0;
    for (const std::string& line : these) {
      if (std::find(those.begin(), those.end(), line) != those.end()) continue;
      std::printf("%s: %s\n", what, line.c_str());
      ++missing;
    }
    return missing;
  };
  const int missing = report(lines, found, "not on the page") + report(found, lines, "not printed");
  return missing == 0 && !found.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  show_buffers();
  show_comparison();
  show_slices();
  show_fields();
  show_numbers();
  show_rewriting();
  show_values();
  if (argc == 3 && std::strcmp(argv[1], "--check") == 0) return check(argv[2]);
  for (const std::string& line : lines) std::puts(line.c_str());
  return 0;
}
