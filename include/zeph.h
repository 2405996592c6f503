/// @file zeph.h
/// Zeph: an exact vocabulary of text operations for programs that hold their texts in fixed byte
/// buffers and in `std::string` objects.
///
/// What holds for every function below, unless its own comment says otherwise:
///
/// - A *byte text* is a `char*` or `const char*` that ends at its first zero byte. A *String* is a
///   `std::string`; it may hold zero bytes, and each comment says whether they end the text.
/// - A byte is a byte: 0x80 and above are bytes like any other, also inside a double-byte
///   character. The only blank is the byte 0x20; a tab or a line end is none.
/// - Room is given in bytes. "`limit + 1` bytes" counts the terminator, "`limit` bytes of content"
///   does not. Nothing is ever written outside the room that is named.
/// - Pointers are valid unless a comment says that NULL is allowed. Texts and buffers of one call
///   must not overlap unless a comment says that they may.
/// - A refusal shows in the result. `errno`, the locale and the system's last error are left as
///   they were found. Only the functions that say so print, and they print a *report* on standard
///   output: a line of 48 hyphens, the message and the hyphens again, with no line break anywhere.
/// - Functions that build or grow a String or a vector pass on the standard library's
///   `std::bad_alloc` and `std::length_error`. Nothing else is thrown unless a comment says so.
/// - Any number of threads may call at once as long as no two of them share an argument that is
///   written. The exceptions are named where they occur.
/// - A name that ends in `_L` ignores the case of letters, as the process's locale folds single
///   bytes; in the "C" locale these are the ASCII letters.
///
/// The header compiles alone from C++11 on.

#ifndef ZEPH_H
#define ZEPH_H

#include <string>
#include <vector>

/// Marks what the shared library exports. Define ZEPH_STATIC where the static library is linked;
/// the CMake target and the pkg-config file do so by themselves.
#if defined(ZEPH_STATIC)
#define ZEPH_API
#elif defined(_WIN32)
#ifdef ZEPH_BUILDING
#define ZEPH_API __declspec(dllexport)
#else
#define ZEPH_API __declspec(dllimport)
#endif
#else
#define ZEPH_API __attribute__((visibility("default")))
#endif

/// Everything that Zeph exports.
namespace Orbane {

/// @defgroup frame Version
/// Which library is this?
/// @{

/// Returns the version of the interface, "0003-20250729": a constant of 13 characters, the same
/// address at every call, neither to be written nor to be freed.
ZEPH_API const char* Zeph_Version_Info(void);

/// @}

/// @defgroup buffers Owned and fixed buffers
/// Heap buffers that grow, fixed buffers of a known size, and NULL read as the empty text.
///
/// An *owned buffer* is a `char*` variable of the caller that holds NULL or a block from `malloc`,
/// `calloc` or one of the functions below (on Windows: from the C runtime that the library uses).
/// It starts as NULL, and Zeph_Release_Mem() ends it. The functions that may replace the block take
/// the variable's address. Two measures of such a buffer are not interchangeable: the *held text*
/// ends at its first zero byte, the *capacity* is the size of the block. Zeph_Copy_Mem() decides by
/// the held text, Zeph_Prepare_Mem() by the capacity.
///
///     char* line = NULL;
///     Orbane::Zeph_Copy_Mem(&line, "ready");     // a block of 6 bytes holds "ready"
///     Orbane::Zeph_Copy_Mem(&line, "off");       // the same block holds "off"
///     Orbane::Zeph_Release_Mem(&line);           // line is NULL again
/// @{

/// Returns `text`, or one constant empty text if `text` is NULL. Nobody writes through the pointer
/// to the empty text.
ZEPH_API char* Zeph_Get_Mem_Str(char* text);

/// Returns the length of the byte text `text`, 0 if `text` is NULL. It is a text length, not the
/// size of a block. A text longer than an `int` can tell gives the largest `int`.
ZEPH_API int Zeph_Get_Mem_Size(char* text);

/// Copies the byte text `source` into the owned buffer `*target`; a NULL `source` is the empty
/// text.
///
/// A text no longer than the held one goes into the block that is there: its bytes and a terminator
/// are written, what stands behind stays. A longer text gets a new block of exactly its length + 1
/// bytes and the old block is freed, even if it had the room. `source` may lie inside the held
/// text.
///
/// Returns true if `*target` holds the text. If the heap refuses the block, reports "[Zeph] Memory
/// calloc Fail in STR_MEM_MAKE_COPY <= NULL" for a NULL `source`, else "... <= [the text]", and
/// returns false: `*target` is NULL then, and the block that it held is gone.
ZEPH_API bool Zeph_Copy_Mem(char** target, const char* source);

/// Writes bytes of the byte text `source` over the byte text `target`, from index `start` on.
///
/// Copies all of `source`, or its first `count` bytes if that is less; a negative `count` means all
/// of it. The length of `target` never changes and no terminator is written. `source` may overlap
/// `target`; the bytes are copied one by one in rising order.
///
/// Returns true when the bytes stand in `target`, also when there are none. Otherwise reports the
/// first reason that applies, returns false and leaves `target` as it was:
/// - a pointer is NULL: "[Zeph] Invalid pointer in Zeph_Copy_Mem";
/// - `start` is negative or not below the length of `target`: "[Zeph] StartIndex out of bounds in
///   Zeph_Copy_Mem";
/// - the bytes would reach past the last byte of `target`: "[Zeph] Copy operation would exceed
///   SourceString bounds in Zeph_Copy_Mem" (the text meant is `target`).
///
///     char name[] = "unit-00";
///     Orbane::Zeph_Copy_Mem(name, 5, "17", -1);  // true, name holds "unit-17"
ZEPH_API bool Zeph_Copy_Mem(char* target, int start, const char* source, int count);

/// Writes a text or a number into the fixed buffer `target` of `size` bytes, terminator included.
///
/// The text form takes the byte text `source`, NULL as the empty text. The `int` form writes
/// decimal digits, the `double` form six digits behind the decimal point of the process's locale,
/// as "%d" and "%f" do. What does not fit is cut at `size - 1` bytes; bytes behind the terminator
/// stay as they were. With `size` 0 `target` is not touched and may be NULL. A negative `size` sets
/// no limit, so that the room must hold the whole text.
///
/// Always returns true: a cut is not reported.
///@{
ZEPH_API bool Zeph_Copy_Stack(char* target, const char* source, int size);
ZEPH_API bool Zeph_Copy_Stack(char* target, int value, int size);
ZEPH_API bool Zeph_Copy_Stack(char* target, double value, int size);
///@}

/// Makes the owned buffer `*buffer` hold at least `size` bytes, any terminator included.
///
/// A block whose capacity is at least `size` stays as it is, content and all. Otherwise it is freed
/// and a new block of `size` zero bytes takes its place; the old content is gone. A negative `size`
/// keeps a block that is there, and is a request that no heap grants where there is none.
///
/// Returns true if the block is there. If the heap refuses it, reports "[Zeph] Memory calloc Fail
/// in Zeph_Prepare_Mem" and returns false with `*buffer` NULL. A block that the heap itself does
/// not know, where the platform can tell, is reported as "[Zeph] Invalid pointer in
/// Zeph_Prepare_Mem", with false, and `*buffer` stays as it was. For `size` 0 on NULL the heap's
/// own answer counts; the usual ones make a block and true.
ZEPH_API bool Zeph_Prepare_Mem(char** buffer, int size);

/// Frees the block of the owned buffer `*buffer` and sets it to NULL. NULL is left alone, so that a
/// second call does nothing.
ZEPH_API void Zeph_Release_Mem(char** buffer);

/// Fills `count` bytes of `block` with the low byte of `value` and returns `block`. With `count` 0
/// nothing is touched and `block` may be NULL.
ZEPH_API char* Zeph_Set_Mem(char* block, int value, unsigned int count);

/// @}

/// @defgroup compare Comparison
/// Are two texts equal? Whole or as a prefix, exactly or ignoring case.
///
/// The String forms take the objects as byte texts: each ends at its first zero byte, and what
/// stands behind has no part in the result. They change neither object, in spite of the
/// non-constant references. Nothing is read behind the first difference.
///
///     Orbane::Zeph_Compare("abcX", "abcY", 3);   // true: equal in the first three bytes
///     Orbane::Zeph_Compare_L("Ready", "READY");  // true
/// @{

/// Returns true if the texts are equal byte for byte. With `n`, only the first `n` bytes count, and
/// texts that end together before that are equal; `n` 0 is always true, a negative `n` sets no
/// limit.
///@{
ZEPH_API bool Zeph_Compare(const char* a, const char* b);
ZEPH_API bool Zeph_Compare(std::string& a, std::string& b);
ZEPH_API bool Zeph_Compare(const char* a, const char* b, int n);
ZEPH_API bool Zeph_Compare(std::string& a, std::string& b, int n);
///@}

/// As Zeph_Compare(), with two bytes equal if they are equal after folding. The fold looks at
/// single bytes and follows the process's locale; in the "C" locale bytes of 0x80 and above compare
/// exactly.
///@{
ZEPH_API bool Zeph_Compare_L(const char* a, const char* b);
ZEPH_API bool Zeph_Compare_L(std::string& a, std::string& b);
ZEPH_API bool Zeph_Compare_L(const char* a, const char* b, int n);
ZEPH_API bool Zeph_Compare_L(std::string& a, std::string& b, int n);
///@}

/// @}

/// @defgroup fields Fields from the left
/// A text is cut into a fixed number of fields, two to five, in the order of the outputs.
///
/// `limit` bounds the content of each field. In the byte text forms every output has room for
/// `limit + 1` bytes: the highest index ever written is `limit`, and a buffer of `limit` bytes is
/// one byte too small. Every output is written on every call and ends with a zero byte; a field
/// that the text does not have is the empty text; bytes behind a terminator stay as they were.
/// Nothing tells of a missing or a cut field. Outputs must not overlap each other. The last output,
/// and it alone, may be the text itself: the rest of the text then moves to the buffer's start.
///
/// The String forms read the object up to its first zero byte, run the byte text form on work
/// buffers of `limit + 1` bytes, one for each field, and then replace the outputs; an output may be
/// the input object. If the heap refuses a work buffer, each refusal is reported as "[Zeph] Memory
/// calloc Fail in Zeph_Prepare_Mem", and all outputs keep what they held.
///
/// A `limit` below 1 makes every field the empty text, which takes one byte of each output.
///
/// The two families differ in what a separator does:
///
/// |                                | Zeph_Seperate()             | Zeph_Seperate_Char()        |
/// |--------------------------------|-----------------------------|-----------------------------|
/// | separator                      | the blank                   | the caller's byte           |
/// | two separators in a row        | count as one                | an empty field between them |
/// | separators at the very start   | field 1 empty, rest skipped | each ends an empty field    |
/// | separators before the last     | skipped                     | belong to the last field    |
/// | field 1 longer than limit      | cut, the split goes on      | cut, the split goes on      |
/// | middle field of limit or more  | cut, later fields are empty | cut, the split goes on      |
/// | last field                     | all that remains, cut       | all that remains, cut       |
/// @{

/// Cuts `text` at blanks into words; the last field takes the whole rest, blanks inside and at the
/// end included.
///
/// The first blank ends field 1, even an empty one. In front of every later field blanks are
/// skipped. A middle field that reaches `limit` bytes ends the split: the fields behind it become
/// empty, also if it fits exactly. Reading stops at the byte that fills a middle or the last field,
/// so that nothing behind it, not even a terminator, has to be readable.
///
///     char kind[9], rest[9];
///     Orbane::Zeph_Seperate("ALARM 17 set", kind, rest, 8);  // "ALARM", "17 set"
///@{
ZEPH_API void Zeph_Seperate(const char* text, char* field1, char* field2, int limit);
ZEPH_API void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3, int limit);
ZEPH_API void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3,
                            char* field4, int limit);
ZEPH_API void Zeph_Seperate(const char* text, char* field1, char* field2, char* field3,
                            char* field4, char* field5, int limit);
ZEPH_API void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                            int limit);
ZEPH_API void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                            std::string& field3, int limit);
ZEPH_API void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                            std::string& field3, std::string& field4, int limit);
ZEPH_API void Zeph_Seperate(const std::string& text, std::string& field1, std::string& field2,
                            std::string& field3, std::string& field4, std::string& field5,
                            int limit);
///@}

/// Cuts `text` at each byte equal to `delimiter`; the last field takes the whole rest, delimiters
/// included.
///
/// Each delimiter ends exactly one field, so that the place in the text decides the field. Bytes
/// above `limit` are dropped and the split goes on at the next delimiter. A zero `delimiter` is
/// never found: the whole text is field 1.
///
///     char x[9], y[9], z[9];
///     Orbane::Zeph_Seperate_Char("1.5,,3,4", ',', x, y, z, 8);  // "1.5", "", "3,4"
///@{
ZEPH_API void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2,
                                 int limit);
ZEPH_API void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2,
                                 char* field3, int limit);
ZEPH_API void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2,
                                 char* field3, char* field4, int limit);
ZEPH_API void Zeph_Seperate_Char(const char* text, char delimiter, char* field1, char* field2,
                                 char* field3, char* field4, char* field5, int limit);
ZEPH_API void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                                 std::string& field2, int limit);
ZEPH_API void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                                 std::string& field2, std::string& field3, int limit);
ZEPH_API void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                                 std::string& field2, std::string& field3, std::string& field4,
                                 int limit);
ZEPH_API void Zeph_Seperate_Char(const std::string& text, char delimiter, std::string& field1,
                                 std::string& field2, std::string& field3, std::string& field4,
                                 std::string& field5, int limit);
///@}

/// @}

}  // namespace Orbane

#endif  // ZEPH_H
