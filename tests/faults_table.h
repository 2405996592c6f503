// Every function that asks the heap for something: a call whose result and outputs are shown as a
// text, what they are if a work buffer is refused, how many work buffers it takes, and the report
// for each refused one.
#ifndef ZEPH_TESTS_FAULTS_TABLE_H
#define ZEPH_TESTS_FAULTS_TABLE_H

#include <string>
#include <vector>

#include "support/refusing_heap.h"
#include "zeph.h"

namespace zeph_test {

const std::string words =
    "a-word-longer-than-any-string-holds-in-itself, another-one-of-these, and-a-third-one-of-them";
const char* const numbers = "12 2.5 0x7F";
const char prepare[] = "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem";
const char copy[] = "[Zeph] Memory calloc Fail in STR_MEM_MAKE_COPY <= [abc]";
const char copy_null[] = "[Zeph] Memory calloc Fail in STR_MEM_MAKE_COPY <= NULL";

using Text = std::string;
using List = std::vector<std::string>;

// clang-format off
const struct Fault {
  const char* function;
  std::string (*call)();
  std::string refused;  // by calloc; a refused operator new throws std::bad_alloc
  long work_buffers;
  const char* report;
  bool stops = false;  // at the first refused work buffer; others ask for all of them
} faults[] = {
    {"Zeph_Copy_Mem", [] { Owned o; bool b = Orbane::Zeph_Copy_Mem(&o.block, "abc"); return shown(std::to_string(b), o.text()); }, "0|NULL|", 1, copy},
    {"Zeph_Copy_Mem, NULL", [] { Owned o; bool b = Orbane::Zeph_Copy_Mem(&o.block, nullptr); return shown(std::to_string(b), o.text()); }, "0|NULL|", 1, copy_null},
    {"Zeph_Prepare_Mem", [] { Owned o; bool b = Orbane::Zeph_Prepare_Mem(&o.block, 9); return shown(std::to_string(b), o.text()); }, "0|NULL|", 1, prepare},
    {"Zeph_Lower", [] { Text out; Orbane::Zeph_Lower(words, out); return shown(out); }, "", 0, ""},
    {"Zeph_Upper", [] { Text out; Orbane::Zeph_Upper(words, out); return shown(out); }, "", 0, ""},
    {"Zeph_Get_SubString", [] { Text out; Orbane::Zeph_Get_SubString(words, 2, 40, out); return shown(out); }, "", 0, ""},
    {"Zeph_Get_SubString between", [] { Text out; Orbane::Zeph_Get_SubString(words, 'w', ',', out); return shown(out); }, "", 0, ""},
    {"Zeph_Ext_Str_From_Str", [] { Text out; Orbane::Zeph_Ext_Str_From_Str(words, 2, 40, out); return shown(out); }, "", 0, ""},
    {"Zeph_Left", [] { return shown(Orbane::Zeph_Left(words, ',')); }, "", 0, ""},
    {"Zeph_Left, piece", [] { return shown(Orbane::Zeph_Left(words, Text(", a"))); }, "", 0, ""},
    {"Zeph_Left to an output", [] { Text out; Orbane::Zeph_Left(words, ',', out); return shown(out); }, "", 0, ""},
    {"Zeph_Left to an output, piece", [] { Text out; Orbane::Zeph_Left(words, Text(", a"), out); return shown(out); }, "", 0, ""},
    {"Zeph_Right", [] { return shown(Orbane::Zeph_Right(words, ',')); }, "", 0, ""},
    {"Zeph_Right, piece", [] { return shown(Orbane::Zeph_Right(words, Text(", a"))); }, "", 0, ""},
    {"Zeph_Right to an output", [] { Text out; Orbane::Zeph_Right(words, ',', out); return shown(out); }, "", 0, ""},
    {"Zeph_Right to an output, piece", [] { Text out; Orbane::Zeph_Right(words, Text(", a"), out); return shown(out); }, "", 0, ""},
    {"Zeph_Seperate, 2", [] { Text a = "A", b = "B"; Orbane::Zeph_Seperate(words, a, b, 50); return shown(a, b); }, "A|B|", 2, prepare},
    {"Zeph_Seperate, 3", [] { Text a = "A", b = "B", c = "C"; Orbane::Zeph_Seperate(words, a, b, c, 50); return shown(a, b, c); }, "A|B|C|", 3, prepare},
    {"Zeph_Seperate, 4", [] { Text a = "A", b = "B", c = "C", d = "D"; Orbane::Zeph_Seperate(words, a, b, c, d, 50); return shown(a, b, c, d); }, "A|B|C|D|", 4, prepare},
    {"Zeph_Seperate, 5", [] { Text a = "A", b = "B", c = "C", d = "D", e = "E"; Orbane::Zeph_Seperate(words, a, b, c, d, e, 50); return shown(a, b, c, d, e); }, "A|B|C|D|E|", 5, prepare},
    {"Zeph_Seperate, the text", [] { Text a = "A b", b = "B"; Orbane::Zeph_Seperate(a, a, b, 50); return shown(a, b); }, "A b|B|", 2, prepare},
    {"Zeph_Seperate_Char, 2", [] { Text a = "A", b = "B"; Orbane::Zeph_Seperate_Char(words, ',', a, b, 50); return shown(a, b); }, "A|B|", 2, prepare},
    {"Zeph_Seperate_Char, 3", [] { Text a = "A", b = "B", c = "C"; Orbane::Zeph_Seperate_Char(words, ',', a, b, c, 50); return shown(a, b, c); }, "A|B|C|", 3, prepare},
    {"Zeph_Seperate_Char, 4", [] { Text a = "A", b = "B", c = "C", d = "D"; Orbane::Zeph_Seperate_Char(words, ',', a, b, c, d, 50); return shown(a, b, c, d); }, "A|B|C|D|", 4, prepare},
    {"Zeph_Seperate_Char, 5", [] { Text a = "A", b = "B", c = "C", d = "D", e = "E"; Orbane::Zeph_Seperate_Char(words, ',', a, b, c, d, e, 50); return shown(a, b, c, d, e); }, "A|B|C|D|E|", 5, prepare},
    {"Zeph_Seperate_Char, the text", [] { Text a = "A,b", b = "B"; Orbane::Zeph_Seperate_Char(a, ',', a, b, 50); return shown(a, b); }, "A,b|B|", 2, prepare},
    {"Zeph_Seperate_Get_Index", [] { return shown(std::to_string(Orbane::Zeph_Seperate_Get_Index("a b", "b"))); }, "-1|", 2, prepare},
    {"Zeph_Seperate_Get_Index_L", [] { return shown(std::to_string(Orbane::Zeph_Seperate_Get_Index_L("a b", "B"))); }, "-1|", 2, prepare},
    {"Zeph_Seperate_Char_Get_Index", [] { return shown(std::to_string(Orbane::Zeph_Seperate_Char_Get_Index("a,b", ',', "b"))); }, "-1|", 2, prepare},
    {"Zeph_Seperate_Char_Get_Index_L", [] { return shown(std::to_string(Orbane::Zeph_Seperate_Char_Get_Index_L("a,b", ',', "B"))); }, "-1|", 2, prepare},
    {"Zeph_Split", [] { List list; Orbane::Zeph_Split(words, ',', list); return shown(list[0], list[1], list[2]); }, "", 0, ""},
    {"Zeph_Join", [] { static const List list(9, words); return shown(Orbane::Zeph_Join(list, ',')); }, "", 0, ""},
    {"Zeph_Join to an output", [] { static const List list(9, words); Text out; Orbane::Zeph_Join(list, ',', out); return shown(out); }, "", 0, ""},
    {"Zeph_To_Int", [] { int n = 7; bool b = Orbane::Zeph_To_Int(numbers, &n, 7, 4); return shown(std::to_string(b), std::to_string(n)); }, "0|7|", 1, prepare},
    {"Zeph_To_Int, String", [] { int n = 7; const Text s = numbers; bool b = Orbane::Zeph_To_Int(s, &n, 7, 4); return shown(std::to_string(b), std::to_string(n)); }, "0|7|", 1, prepare},
    {"Zeph_To_Int, bounds", [] { int n = 7; bool b = Orbane::Zeph_To_Int(numbers, 1, 999, &n, 7, 4); return shown(std::to_string(b), std::to_string(n)); }, "0|7|", 1, prepare},
    {"Zeph_To_Int, String, bounds", [] { int n = 7; const Text s = numbers; bool b = Orbane::Zeph_To_Int(s, 1, 999, &n, 7, 4); return shown(std::to_string(b), std::to_string(n)); }, "0|7|", 1, prepare},
    {"Zeph_To_Double", [] { double n = 7; bool b = Orbane::Zeph_To_Double(numbers, &n, 3, 3); return shown(std::to_string(b), std::to_string(n)); }, "0|7.000000|", 1, prepare},
    {"Zeph_To_Double, String", [] { double n = 7; const Text s = numbers; bool b = Orbane::Zeph_To_Double(s, &n, 3, 3); return shown(std::to_string(b), std::to_string(n)); }, "0|7.000000|", 1, prepare},
    {"Zeph_To_Double, bounds", [] { double n = 7; bool b = Orbane::Zeph_To_Double(numbers, 1, 9, &n, 3, 3); return shown(std::to_string(b), std::to_string(n)); }, "0|7.000000|", 1, prepare},
    {"Zeph_To_Double, String, bounds", [] { double n = 7; const Text s = numbers; bool b = Orbane::Zeph_To_Double(s, 1, 9, &n, 3, 3); return shown(std::to_string(b), std::to_string(n)); }, "0|7.000000|", 1, prepare},
    {"Zeph_Replace, String", [] { Text s = "one,two,three"; Orbane::Zeph_Replace(s, Text(","), Text(" and then ")); return shown(s); }, "", 0, ""},
    {"Zeph_Replace, byte text", [] { char s[40] = "aaaabb"; Orbane::Zeph_Replace(s, "ab", "bca"); return shown(s); }, "aaaabb|", 2, nullptr},
    {"Zeph_Replace, byte text, apart", [] { char s[40] = "a,b"; Orbane::Zeph_Replace(s, ",", "--"); return shown(s); }, "", 0, nullptr},
    {"Zeph_String_Check", [] { Text out; Orbane::Zeph_String_Check(words, out); return shown(out); }, "", 0, ""},
    {"Zeph_Splicing", [] { return shown(Orbane::Zeph_Splicing(99, "%s", words.c_str())); }, "", 0, ""},
    {"Zeph_To_Ascii", [] { return shown(Orbane::Zeph_To_Ascii(words.c_str())); }, "", 0, ""},
    {"Zeph_To_Ascii, count", [] { return shown(Orbane::Zeph_To_Ascii(words.c_str(), 20)); }, "", 0, ""},
    {"Zeph_To_Ascii to a buffer", [] { Owned o; const char* s = Orbane::Zeph_To_Ascii("abc", &o.block); return shown(s ? s : "NULL", o.text()); }, "NULL|NULL|", 1, prepare},
    {"Zeph_To_Ascii to a buffer, count", [] { Owned o; const char* s = Orbane::Zeph_To_Ascii("abc", 2, &o.block); return shown(s ? s : "NULL", o.text()); }, "NULL|NULL|", 1, prepare},
    {"Zeph_Check_SxxFxx", [] { unsigned char s = 7, f = 8; bool b = Orbane::Zeph_Check_SxxFxx("S1F13", &s, &f); return shown(std::to_string(b), std::to_string(s), std::to_string(f)); }, "0|7|8|", 2, prepare, true},
    {"Zeph_UTF8_to_ANSI", [] { return shown(Orbane::Zeph_UTF8_to_ANSI(words.c_str())); }, "", 0, ""},
    {"Zeph_UTF8_to_ANSI, String", [] { static Text s = words; return shown(Orbane::Zeph_UTF8_to_ANSI(s)); }, "", 0, ""},
    {"Zeph_ANSI_to_UTF8", [] { return shown(Orbane::Zeph_ANSI_to_UTF8(words.c_str())); }, "", 0, ""},
    {"Zeph_ANSI_to_UTF8, String", [] { static Text s = words; return shown(Orbane::Zeph_ANSI_to_UTF8(s)); }, "", 0, ""},
};
// clang-format on

}  // namespace zeph_test

#endif  // ZEPH_TESTS_FAULTS_TABLE_H
