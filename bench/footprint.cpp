// zeph_footprint FILE: what one call of each kind asks the heap for, as JSON. Results that the
// caller keeps are named in the table; everything else is given back before the call returns.
#include <cstdlib>
#include <string>
#include <vector>

#include "json.h"
#include "zeph.h"

namespace {

bool counting = false;
double blocks = 0, bytes = 0;

void note(std::size_t size) {
  if (!counting) return;
  blocks += 1;
  bytes += static_cast<double>(size);
}

}  // namespace

// The program's own requests stand in for the C library's.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);

void* malloc(std::size_t size) {
  note(size);
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
  note(count * size);
  return __libc_calloc(count, size);
}
}

namespace {

using namespace Orbane;

char line[512] = "12:30:05,CHAMBER,0.75";
char record[600], out[5][256];
char* block = nullptr;
const std::string text(100, 'x'), fields = "12:30:05,CHAMBER,0.75";
std::string own(200, 'x'), a(100, 'a'), b(100, 'b'), c(100, 'c');
std::vector<std::string> items;

const struct {
  const char* operation;
  const char* keeps;
  void (*call)();
} rows[] = {
    {"Zeph_Compare, Zeph_Compare_L", "",
     [] { Zeph_Compare(line, line), Zeph_Compare_L(line, line); }},
    {"Zeph_Lower, Zeph_Trimed", "", [] { Zeph_Lower(line), Zeph_Trimed(line); }},
    {"Zeph_Find_Position, Zeph_Find_Position_L", "",
     [] { Zeph_Find_Position(line, "R,"), Zeph_Find_Position_L(line, "r,"); }},
    {"Zeph_Get_SubString, byte text", "", [] { Zeph_Get_SubString(line, 9, 7, out[0]); }},
    {"Zeph_Right to an output", "", [] { Zeph_Right(text, 'y', own); }},
    {"Zeph_Right", "the result, 100 bytes", [] { Zeph_Right(text, 'y'); }},
    {"Zeph_Seperate_Char, byte text", "",
     [] { Zeph_Seperate_Char(line, ',', out[0], out[1], out[2], 63); }},
    {"Zeph_Seperate_Char, 3 Strings, limit 63", "",
     [] { Zeph_Seperate_Char(fields, ',', a, b, c, 63); }},
    {"Zeph_Seperate_Char_Get_Index, 21 bytes", "",
     [] { Zeph_Seperate_Char_Get_Index(line, ',', "0.75"); }},
    {"Zeph_Split, 3 short items", "the list", [] { Zeph_Split("one,two,three", ',', items); }},
    {"Zeph_Join to an output", "", [] { Zeph_Join(items, ',', own); }},
    {"Zeph_To_Int, Zeph_To_Double", "",
     [] {
       int number;
       double real;
       Zeph_To_Int("421337", &number);
       Zeph_To_Double("0.75", &real);
     }},
    {"Zeph_To_Int, a slice of 4 bytes", "",
     [] {
       int number;
       Zeph_To_Int("x1337", &number, 1, 4);
     }},
    {"Zeph_Conv_Dbl_To_Str", "", [] { Zeph_Conv_Dbl_To_Str(0.75, 3, out[0]); }},
    {"Zeph_Replace, a shorter piece", "", [] { Zeph_Replace(line, "CHAMBER", "C"); }},
    {"Zeph_Remove", "", [] { Zeph_Remove(own, 'y'); }},
    {"Zeph_Cat", "", [] { out[1][0] = '\0', Zeph_Cat(out[1], 0.75), Zeph_Cat(out[1], 7); }},
    {"Zeph_Splicing, 60 bytes", "the result",
     [] {
       Zeph_Splicing(100, "%s", "sixty bytes of text, which no String holds within itself, ok");
     }},
    {"Zeph_To_Ascii to a new buffer, 8 bytes", "the buffer, 25 bytes",
     [] { Zeph_To_Ascii("12345678", 8, &block); }},
    {"Zeph_To_Ascii to that buffer", "", [] { Zeph_To_Ascii("12345678", 8, &block); }},
    {"Zeph_Check_SxxFxx", "",
     [] {
       unsigned char stream, function;
       Zeph_Check_SxxFxx("S6F11", &stream, &function);
     }},
    {"Zeph_UTF8_to_ANSI, 100 bytes", "the result", [] { Zeph_UTF8_to_ANSI(text.c_str()); }},
    {"Zeph_Encrypt, Zeph_Decrypt", "",
     [] { Zeph_Encrypt(line, record), Zeph_Decrypt(record, line); }},
    {"Zeph_Get_DateTime, Zeph_Seconds_To_Time", "",
     [] { Zeph_Get_DateTime(), Zeph_Seconds_To_Time(3661.5); }},
    {"Zeph_Get_SysErrMsg", "", [] { Zeph_Get_SysErrMsg(); }},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Zeph_Get_DateTime();  // the first stamp of a process lets the runtime read the zone
  zeph_bench::JsonFile json(argv[1]);
  if (!json.open()) return 1;
  json.begin_list("heap");
  for (const auto& row : rows) {
    blocks = bytes = 0;
    counting = true;
    row.call();
    counting = false;
    json.begin_object();
    json.put("operation", std::string(row.operation));
    json.put("keeps", std::string(row.keeps));
    json.put("blocks", blocks);
    json.put("bytes", bytes);
    json.end_object();
  }
  json.end_list();
  Zeph_Release_Mem(&block);
  return 0;
}
