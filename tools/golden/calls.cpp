// The calls that a golden table can name. The words behind the function choose among its overloads:
// "bytes" a byte text, otherwise a String; a number, as many outputs or texts.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <new>
#include <stdexcept>
#include <utility>

#include "rows.h"
#include "zeph.h"

using namespace Orbane;

namespace zeph_golden {
namespace {

class Arguments {
 public:
  explicit Arguments(const Row& row) : row_(row), texts_(row.arguments) {}

  bool is(const char* word) const {
    return std::find(row_.call.begin(), row_.call.end(), word) != row_.call.end();
  }
  std::size_t count() const {
    return std::stoul(row_.call.back());
  }
  std::size_t size() const {
    return texts_.size();
  }
  std::string& text(std::size_t i) {
    return texts_.at(i);
  }
  char* bytes(std::size_t i) {
    return texts_.at(i).data();
  }
  int number(std::size_t i) {
    return std::stoi(texts_.at(i));
  }
  double real(std::size_t i) {
    return std::strtod(texts_.at(i).c_str(), nullptr);
  }
  char byte(std::size_t i) {
    return texts_.at(i).at(0);
  }

 private:
  const Row& row_;
  Parts texts_;
};

using A = Arguments;

// Room for an output of a byte text form.
struct Room {
  char bytes[2048] = "untouched";
};

std::string shown(bool value) {
  return value ? "true" : "false";
}

std::string shown(int value) {
  return std::to_string(value);
}

std::string shown(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.17g", value);
  return text;
}

// Calls a function of two to five outputs, on byte texts or Strings.
template <typename Outputs, typename Call>
void with_outputs(std::size_t count, Outputs& o, Call call) {
  switch (count) {
    case 2:
      return call(o[0], o[1]);
    case 3:
      return call(o[0], o[1], o[2]);
    case 4:
      return call(o[0], o[1], o[2], o[3]);
    default:
      return call(o[0], o[1], o[2], o[3], o[4]);
  }
}

template <typename Call>
Parts bytes_to_outputs(A& a, Call call) {
  Room rooms[5];
  char* outputs[5];
  for (int i = 0; i < 5; ++i) outputs[i] = rooms[i].bytes;
  with_outputs(a.count(), outputs, [&](auto&... o) { call(a.bytes(0), o...); });
  return Parts(outputs, outputs + a.count());
}

template <typename Call>
Parts to_outputs(A& a, Call call) {
  if (a.is("bytes")) return bytes_to_outputs(a, call);
  Parts outputs(5);
  with_outputs(a.count(), outputs, [&](auto&... o) { call(std::as_const(a.text(0)), o...); });
  outputs.resize(a.count());
  return outputs;
}

template <typename Call>
Parts in_place(A& a, Call call) {
  if (!a.is("bytes")) {
    call(a.text(0));
    return {a.text(0)};
  }
  Room room;
  std::strcpy(room.bytes, a.bytes(0));
  call(static_cast<char*>(room.bytes));
  return {room.bytes};
}

// From a text to one output that may be refused; `call` returns whether it was written.
template <typename Call>
Parts to_output(A& a, Call call) {
  Room room;
  std::string out = "untouched";
  try {
    if (a.is("bytes")) {
      const bool result =
          call(static_cast<const char*>(a.bytes(0)), static_cast<char*>(room.bytes));
      return {shown(result), room.bytes};
    }
    const bool result = call(std::as_const(a.text(0)), out);
    return {shown(result), out};
  } catch (const std::out_of_range& e) {
    return {e.what(), out};
  }
}

// Whether a text is a number, and which; of a slice or of all of it, in bounds or not.
template <typename Number, typename Read>
Parts strict(A& a, Number before, Number (A::*bound)(std::size_t), Read read) {
  Number value = before;
  const std::size_t slice = a.is("bounds") ? 3 : 1;
  const auto from = [&](const auto& text) {
    const auto with = [&](auto... bounds) {
      return a.is("slice") ? read(text, bounds..., &value, a.number(slice), a.number(slice + 1))
                           : read(text, bounds..., &value);
    };
    return a.is("bounds") ? with((a.*bound)(1), (a.*bound)(2)) : with();
  };
  const bool result = a.is("bytes") ? from(static_cast<const char*>(a.bytes(0))) : from(a.text(0));
  return {shown(result), shown(value)};
}

// `find` of a whole text, or of a range of it.
template <typename Find>
Parts found(A& a, Find find) {
  if (a.is("range")) return {shown(find(a.bytes(0), a.number(1), a.number(2), a.bytes(3)))};
  return {shown(find(a.bytes(0), a.bytes(1)))};
}

template <typename Compare>
Parts compared(A& a, Compare compare) {
  const auto equal = [&](auto&& x, auto&& y) {
    return a.size() == 3 ? compare(x, y, a.number(2)) : compare(x, y);
  };
  return {shown(a.is("bytes") ? equal(a.bytes(0), a.bytes(1)) : equal(a.text(0), a.text(1)))};
}

// What stands beside a marker, which is a text or a byte.
template <typename Side>
Parts beside(A& a, Side side) {
  return {a.is("byte") ? side(std::as_const(a.text(0)), a.byte(1))
                       : side(std::as_const(a.text(0)), std::as_const(a.text(1)))};
}

template <typename Value>
Parts appended(A& a, Value value) {
  Room room;
  std::strcpy(room.bytes, a.bytes(0));
  return {Zeph_Cat(room.bytes, value)};
}

template <typename Value>
Parts cut_to_size(Value value, int size) {
  Room room;
  Zeph_Copy_Stack(room.bytes, value, size);
  return {room.bytes};
}

Parts joined_alarms(A& a) {
  Room room;
  std::strcpy(room.bytes, a.bytes(0));
  const auto join = [&](auto... i) {
    Zeph_Strcat_Alarm_Append_Text(room.bytes, static_cast<const char*>(a.bytes(std::size_t(i)))...);
  };
  switch (a.size()) {
    case 2:
      join(1);
      break;
    case 3:
      join(1, 2);
      break;
    case 4:
      join(1, 2, 3);
      break;
    case 5:
      join(1, 2, 3, 4);
      break;
    default:
      join(1, 2, 3, 4, 5);
  }
  return {room.bytes};
}

Parts dump(A& a) {
  const int count = a.is("count") ? a.number(1) : 0;
  if (!a.is("buffer")) {
    return {a.is("count") ? Zeph_To_Ascii(a.bytes(0), count) : Zeph_To_Ascii(a.bytes(0))};
  }
  char* block = nullptr;
  a.is("count") ? Zeph_To_Ascii(a.bytes(0), count, &block) : Zeph_To_Ascii(a.bytes(0), &block);
  const Parts result = {block};
  Zeph_Release_Mem(&block);
  return result;
}

Parts message_name(A& a) {
  unsigned char stream = 77, function = 78;
  const bool result = Zeph_Check_SxxFxx(a.bytes(0), &stream, &function);
  return {shown(result), shown(int{stream}), shown(int{function})};
}

void reset_key(std::string& key) {
  Zeph_Encrypt_Reset_Key(static_cast<unsigned long>(key.size()),
                         reinterpret_cast<unsigned char*>(key.data()));
}

// Under the key of argument 1.
Parts sealed(A& a) {
  reset_key(a.text(1));
  char record[2048] = {};
  const unsigned long length = Zeph_Encrypt(a.bytes(0), record);
  return {shown(static_cast<int>(length)), std::string(record, 16 + length)};
}

Parts opened(A& a) {
  reset_key(a.text(1));
  char text[2048] = {};
  const unsigned long length = Zeph_Decrypt(a.bytes(0), text);
  return {shown(static_cast<int>(length)), std::string(text, length)};
}

Parts split(A& a) {
  Parts list;
  Zeph_Split(a.text(0), a.byte(1), list);
  return list;
}

Parts joined(A& a) {
  Parts list;
  for (std::size_t i = 1; i < a.size(); ++i) list.push_back(a.text(i));
  return {Zeph_Join(list, a.byte(0))};
}

Parts overlay(A& a) {
  const bool result = Zeph_Copy_Mem(a.bytes(0), a.number(1), a.bytes(2), a.number(3));
  return {shown(result), a.bytes(0)};
}

template <typename Extract>
Parts lenient(A& a, Extract extract) {
  return {shown(extract(static_cast<const char*>(a.bytes(0)), a.number(1), a.number(2)))};
}

// A lambda that hands its arguments on to one of the overloads.
#define ZEPH_CALL(function) [](auto&&... x) { return function(x...); }

const std::map<std::string, std::function<Parts(A&)>> calls = {
    {"Zeph_Compare", [](A& a) { return compared(a, ZEPH_CALL(Zeph_Compare)); }},
    {"Zeph_Compare_L", [](A& a) { return compared(a, ZEPH_CALL(Zeph_Compare_L)); }},
    {"Zeph_Lower", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Lower)); }},
    {"Zeph_Upper", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Upper)); }},
    {"Zeph_Del_TailSpace", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Del_TailSpace)); }},
    {"Zeph_Del_HeadSpace", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Del_HeadSpace)); }},
    {"Zeph_Trimed", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Trimed)); }},
    {"Zeph_Find_Position", [](A& a) { return found(a, ZEPH_CALL(Zeph_Find_Position)); }},
    {"Zeph_Find_Position_L", [](A& a) { return found(a, ZEPH_CALL(Zeph_Find_Position_L)); }},
    {"Zeph_Find_SubString", [](A& a) { return found(a, ZEPH_CALL(Zeph_Find_SubString)); }},
    {"Zeph_Find_SubString_L", [](A& a) { return found(a, ZEPH_CALL(Zeph_Find_SubString_L)); }},
    {"Zeph_Left", [](A& a) { return beside(a, ZEPH_CALL(Zeph_Left)); }},
    {"Zeph_Right", [](A& a) { return beside(a, ZEPH_CALL(Zeph_Right)); }},
    {"Zeph_Get_SubString",
     [](A& a) {
       return to_output(a, [&](auto&& text, auto&& out) {
         return Zeph_Get_SubString(text, a.number(1), a.number(2), out);
       });
     }},
    {"Zeph_Get_SubString_Between",
     [](A& a) {
       std::string out = "untouched";
       const bool result = Zeph_Get_SubString(a.text(0), a.byte(1), a.byte(2), out);
       return Parts{shown(result), out};
     }},
    {"Zeph_Ext_Str_From_Str",
     [](A& a) {
       return to_output(a, [&](auto&& text, auto&& out) {
         return Zeph_Ext_Str_From_Str(text, a.number(1), a.number(2), out), true;
       });
     }},
    {"Zeph_Ext_Name_From_FullPath",
     [](A& a) {
       Room room;
       Zeph_Ext_Name_From_FullPath(room.bytes, a.bytes(0), a.number(1));
       return Parts{room.bytes};
     }},
    {"Zeph_Seperate",
     [](A& a) {
       return to_outputs(a,
                         [&](auto&& text, auto&... o) { Zeph_Seperate(text, o..., a.number(1)); });
     }},
    {"Zeph_Seperate_Char",
     [](A& a) {
       return to_outputs(a, [&](auto&& text, auto&... o) {
         Zeph_Seperate_Char(text, a.byte(1), o..., a.number(2));
       });
     }},
    {"Zeph_Seperate_Reverse",
     [](A& a) {
       return bytes_to_outputs(a, [](auto text, auto&... o) { Zeph_Seperate_Reverse(text, o...); });
     }},
    {"Zeph_Seperate_Char_Reverse",
     [](A& a) {
       return bytes_to_outputs(
           a, [&](auto text, auto&... o) { Zeph_Seperate_Char_Reverse(text, a.byte(1), o...); });
     }},
    {"Zeph_Seperate_With_Index",
     [](A& a) {
       Room room;
       Zeph_Seperate_With_Index(a.bytes(0), room.bytes, a.number(1), a.number(2));
       return Parts{room.bytes};
     }},
    {"Zeph_Seperate_Char_With_Index",
     [](A& a) {
       Room room;
       Zeph_Seperate_Char_With_Index(a.bytes(0), a.byte(1), room.bytes, a.number(2), a.number(3));
       return Parts{room.bytes};
     }},
    {"Zeph_Seperate_Get_Index",
     [](A& a) { return Parts{shown(Zeph_Seperate_Get_Index(a.bytes(0), a.bytes(1)))}; }},
    {"Zeph_Seperate_Get_Index_L",
     [](A& a) { return Parts{shown(Zeph_Seperate_Get_Index_L(a.bytes(0), a.bytes(1)))}; }},
    {"Zeph_Seperate_Char_Get_Index",
     [](A& a) {
       return Parts{shown(Zeph_Seperate_Char_Get_Index(a.bytes(0), a.byte(1), a.bytes(2)))};
     }},
    {"Zeph_Seperate_Char_Get_Index_L",
     [](A& a) {
       return Parts{shown(Zeph_Seperate_Char_Get_Index_L(a.bytes(0), a.byte(1), a.bytes(2)))};
     }},
    {"Zeph_Split", split},
    {"Zeph_Join", joined},
    {"Zeph_Int_Check",
     [](A& a) {
       return Parts{shown(a.is("bytes") ? Zeph_Int_Check(a.bytes(0)) : Zeph_Int_Check(a.text(0)))};
     }},
    {"Zeph_Double_Check",
     [](A& a) {
       return Parts{
           shown(a.is("bytes") ? Zeph_Double_Check(a.bytes(0)) : Zeph_Double_Check(a.text(0)))};
     }},
    {"Zeph_To_Int", [](A& a) { return strict<int>(a, -77, &A::number, ZEPH_CALL(Zeph_To_Int)); }},
    {"Zeph_To_Double",
     [](A& a) { return strict<double>(a, -77, &A::real, ZEPH_CALL(Zeph_To_Double)); }},
    {"Zeph_Char_Num_Check",
     [](A& a) {
       char value = -77;
       const bool result = Zeph_Char_Num_Check(a.bytes(0), static_cast<char>(a.number(1)),
                                               static_cast<char>(a.number(2)), &value);
       return Parts{shown(result), shown(int{static_cast<signed char>(value)})};
     }},
    {"Zeph_Ext_Int_From_Str", [](A& a) { return lenient(a, ZEPH_CALL(Zeph_Ext_Int_From_Str)); }},
    {"Zeph_Ext_Dbl_From_Str", [](A& a) { return lenient(a, ZEPH_CALL(Zeph_Ext_Dbl_From_Str)); }},
    {"Zeph_HexStr_to_DecInt",
     [](A& a) {
       return a.size() == 1 ? Parts{shown(Zeph_HexStr_to_DecInt(a.bytes(0)))}
                            : lenient(a, ZEPH_CALL(Zeph_HexStr_to_DecInt));
     }},
    {"Zeph_Conv_Dbl_To_Str",
     [](A& a) {
       Room room;
       Zeph_Conv_Dbl_To_Str(a.real(0), a.number(1), room.bytes);
       return Parts{room.bytes};
     }},
    {"Zeph_Replace_Byte",
     [](A& a) {
       return in_place(a, [&](auto&& text) { Zeph_Replace(text, a.byte(1), a.byte(2)); });
     }},
    {"Zeph_Replace",
     [](A& a) {
       if (!a.is("bytes")) Zeph_Replace(a.text(0), a.text(1), a.text(2));
       return a.is("bytes")
                  ? in_place(a,
                             [&](auto&& text) { Zeph_Replace(&text[0], a.bytes(1), a.bytes(2)); })
                  : Parts{a.text(0)};
     }},
    {"Zeph_Remove",
     [](A& a) {
       if (!a.is("bytes")) Zeph_Remove(a.text(0), a.text(1));
       return a.is("bytes") ? in_place(a, [&](auto&& text) { Zeph_Remove(&text[0], a.bytes(1)); })
                            : Parts{a.text(0)};
     }},
    {"Zeph_Remove_Byte", [](A& a) { return Zeph_Remove(a.text(0), a.byte(1)), Parts{a.text(0)}; }},
    {"Zeph_String_Check",
     [](A& a) { return in_place(a, [](auto&& text) { Zeph_String_Check(text); }); }},
    {"Zeph_String_Check_To",
     [](A& a) {
       Room room;
       std::string out = "untouched";
       const bool result = a.is("bytes") ? Zeph_String_Check(a.bytes(0), a.number(1), room.bytes)
                                         : Zeph_String_Check(a.text(0), out);
       return Parts{shown(result), a.is("bytes") ? room.bytes : out};
     }},
    {"Zeph_Remove_QuoteMark", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Remove_QuoteMark)); }},
    {"Zeph_Remove_Bracket", [](A& a) { return in_place(a, ZEPH_CALL(Zeph_Remove_Bracket)); }},
    {"Zeph_Remove_HeadTail",
     [](A& a) { return Zeph_Remove_HeadTail(a.text(0), a.byte(1)), Parts{a.text(0)}; }},
    {"Zeph_Cat",
     [](A& a) {
       return a.is("int")      ? appended(a, a.number(1))
              : a.is("double") ? appended(a, a.real(1))
              : a.is("float")  ? appended(a, static_cast<float>(a.real(1)))
                               : appended(a, static_cast<const char*>(a.bytes(1)));
     }},
    {"Zeph_Copy_Stack",
     [](A& a) {
       return a.is("int")      ? cut_to_size(a.number(0), a.number(1))
              : a.is("double") ? cut_to_size(a.real(0), a.number(1))
                               : cut_to_size(static_cast<const char*>(a.bytes(0)), a.number(1));
     }},
    {"Zeph_Splicing",
     [](A& a) {
       if (a.is("real")) {
         const double r = a.real(1);
         return Parts{Zeph_Splicing(a.number(0), "%8.2f %-8.0f %08.3f %f", r, r, r, r)};
       }
       if (a.is("widths")) {
         const int n = a.number(2);
         return Parts{Zeph_Splicing(a.number(0), "%6s %-6.2s %05d %-5i %08X %x%3c", a.bytes(1),
                                    a.bytes(1), n, n, n, n, a.byte(1))};
       }
       return Parts{Zeph_Splicing(a.number(0), "%s=%d", a.bytes(1), a.number(2))};
     }},
    {"Zeph_Copy_Mem", overlay},
    {"Zeph_Strcat_Alarm_Append_Text", joined_alarms},
    {"Zeph_To_Ascii", dump},
    {"Zeph_Check_SxxFxx", message_name},
    {"Zeph_UTF8_to_ANSI", [](A& a) { return Parts{Zeph_UTF8_to_ANSI(a.text(0))}; }},
    {"Zeph_ANSI_to_UTF8", [](A& a) { return Parts{Zeph_ANSI_to_UTF8(a.text(0))}; }},
    {"Zeph_Encrypt", sealed},
    {"Zeph_Decrypt", opened},
    {"Zeph_Seconds_To_Time",
     [](A& a) {
       return Parts{Zeph_Seconds_To_Time(a.real(0)), Zeph_Seconds_To_Time2(a.real(0))};
     }},
    {"Zeph_Version_Info", [](A&) { return Parts{Zeph_Version_Info()}; }},
};

}  // namespace

Parts result_of(const Row& row) {
  const auto call = calls.find(row.call[0]);
  if (call == calls.end()) throw std::invalid_argument("no such call: " + row.call[0]);
  Arguments arguments(row);
  return call->second(arguments);
}

}  // namespace zeph_golden
