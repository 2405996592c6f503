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

/// Lets a program call the shared library through the address that the loader has stored, as on
/// Windows. Without it each call takes one more jump, through the program's procedure linkage table
/// (PLT), which the short operations feel: some half nanosecond of two to five.
#if defined(__ELF__) && defined(__x86_64__) && defined(__has_attribute)
#if __has_attribute(__noplt__)
#define ZEPH_NO_PLT __attribute__((__noplt__))
#endif
#endif
#ifndef ZEPH_NO_PLT
#define ZEPH_NO_PLT
#endif

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
#define ZEPH_API __attribute__((visibility("default"))) ZEPH_NO_PLT
#endif

/// Lets compilers that can check a printf format do so.
#if defined(__GNUC__) && !defined(_WIN32)
#define ZEPH_FORMAT(text, rest) __attribute__((__format__(__printf__, text, rest)))
#else
#define ZEPH_FORMAT(text, rest)
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
/// own answer counts; the usual ones make a block and true. That block has room for no byte, not
/// even for the terminator of an empty text: nothing may read it as a text.
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
/// non-constant references. Of byte texts nothing is read behind the first difference, and of any
/// text nothing behind the first `n` bytes where a number bounds them.
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

/// @defgroup normalise Case and blanks
/// Letters folded to one case, and blanks taken off the ends. No member has a result.
///
/// The byte text forms work up to the first zero byte, the String forms on the whole stored size: a
/// zero byte inside a String is a byte like any other.
///
///     char unit[] = "  Chamber 2 ";
///     Orbane::Zeph_Trimed(unit);  // "Chamber 2"
///     Orbane::Zeph_Upper(unit);   // "CHAMBER 2"
/// @{

/// Folds the letters of a text to lower case.
///
/// The fold looks at single bytes and follows the process's locale. In the "C" locale it changes
/// the ASCII letters and nothing else, so that bytes of 0x80 and above keep their value; a trail
/// byte of a double-byte character that lies among the ASCII letters is folded like one.
///
/// The forms with one argument fold in place. Those with two write `target`: the byte text form its
/// length and a terminator, so that `target` has room for the length of `source` + 1 bytes; the
/// String form replaces the object. `source` and `target` may be the same.
///@{
ZEPH_API void Zeph_Lower(char* text);
ZEPH_API void Zeph_Lower(const char* source, char* target);
ZEPH_API void Zeph_Lower(std::string& text);
ZEPH_API void Zeph_Lower(const std::string& source, std::string& target);
///@}

/// As Zeph_Lower(), to upper case.
///@{
ZEPH_API void Zeph_Upper(char* text);
ZEPH_API void Zeph_Upper(const char* source, char* target);
ZEPH_API void Zeph_Upper(std::string& text);
ZEPH_API void Zeph_Upper(const std::string& source, std::string& target);
///@}

/// Takes the blanks off the end. The blank is the byte 0x20 alone: a tab, a line end or, in a
/// String, a zero byte at the end keeps what stands before it.
///
/// In a byte text every one of the trailing blanks becomes a zero byte. A String gets shorter and
/// keeps its capacity.
///@{
ZEPH_API void Zeph_Del_TailSpace(char* text);
ZEPH_API void Zeph_Del_TailSpace(std::string& text);
///@}

/// Takes the blanks off the start; the rest moves down. The blank is the byte 0x20 alone.
///
/// In a byte text the bytes from the new terminator up to the old one are zero, as if the blanks
/// had been taken out one by one; what stands behind the old terminator stays as it was. A String
/// gets shorter and keeps its capacity.
///@{
ZEPH_API void Zeph_Del_HeadSpace(char* text);
ZEPH_API void Zeph_Del_HeadSpace(std::string& text);
///@}

/// Takes the blanks off both ends, as Zeph_Del_HeadSpace() and then Zeph_Del_TailSpace() do. Blanks
/// inside stay; a text of blanks becomes the empty text.
///@{
ZEPH_API void Zeph_Trimed(char* text);
ZEPH_API void Zeph_Trimed(std::string& text);
///@}

/// @}

/// @defgroup search Search
/// Where does a pattern stand in a byte text?
///
/// Positions count from 0 at the first byte of the whole text, in the members with a range too. The
/// first match from the left is found. An empty pattern stands nowhere, not even in an empty text.
///
/// With `start` and `end`, all bytes of a match must stand at indexes from `start` up to, and not
/// including, `end` or the end of the text, whichever is less. An `end` at or below `start`, or a
/// `start` at or behind the end of the text, finds nothing; a negative `start` acts as 0. Nothing
/// at or behind index `end` is read, so that the text needs no terminator before it.
///
/// The cost is linear in the text and the pattern, whatever they hold; nothing is allocated.
///
///     Orbane::Zeph_Find_Position("hello", "lo");          // 3
///     Orbane::Zeph_Find_Position("hello", 0, 4, "lo");    // -1: the match needs index 4
///     Orbane::Zeph_Find_Position_L("Alarm set", "ALARM");  // 0
/// @{

/// Returns the index of the first match, -1 if there is none. A match that starts behind the
/// largest `int` is not found.
///@{
ZEPH_API int Zeph_Find_Position(const char* text, const char* pattern);
ZEPH_API int Zeph_Find_Position(const char* text, int start, int end, const char* pattern);
///@}

/// As Zeph_Find_Position(), with two bytes equal if they are equal after folding to lower case. The
/// fold looks at single bytes and follows the process's locale; in the "C" locale it folds the
/// ASCII letters and nothing else.
///@{
ZEPH_API int Zeph_Find_Position_L(const char* text, const char* pattern);
ZEPH_API int Zeph_Find_Position_L(const char* text, int start, int end, const char* pattern);
///@}

/// Returns whether Zeph_Find_Position() finds the pattern.
///@{
ZEPH_API bool Zeph_Find_SubString(const char* text, const char* pattern);
ZEPH_API bool Zeph_Find_SubString(const char* text, int start, int end, const char* pattern);
///@}

/// Returns whether Zeph_Find_Position_L() finds the pattern.
///@{
ZEPH_API bool Zeph_Find_SubString_L(const char* text, const char* pattern);
ZEPH_API bool Zeph_Find_SubString_L(const char* text, int start, int end, const char* pattern);
///@}

/// @}

/// @defgroup slices Slices
/// A piece of a text by position, between two delimiter bytes, in front of or behind a marker, and
/// the last component of a path.
///
/// The byte text forms end at the first zero byte unless a comment says otherwise. The String forms
/// go by the stored size: zero bytes are ordinary bytes, in texts and in markers. Where a String is
/// replaced, it may be the same object as the text.
/// @{

/// Takes `count` bytes of `text` from index `start` on, or all that is there if that is less; a
/// negative `count` takes all.
///
/// `out` of the byte text form has room for the bytes taken and the terminator; it may be `text`.
///
/// Returns true if `start` lies inside the text. At the end of the text or behind it, returns false
/// and leaves `out` untouched. So does the byte text form for a negative `start`, and reads
/// nothing; the String form throws `std::out_of_range` ("invalid string position") for it.
///
///     char piece[6];
///     Orbane::Zeph_Get_SubString("hello", 1, 3, piece);  // true, piece holds "ell"
///     Orbane::Zeph_Get_SubString("hello", 5, 1, piece);  // false
///@{
ZEPH_API bool Zeph_Get_SubString(const char* text, int start, int count, char* out);
ZEPH_API bool Zeph_Get_SubString(const std::string& text, int start, int count, std::string& out);
///@}

/// Takes the bytes between the first `open` and the first `close` of the whole text. The search for
/// `close` does not start behind `open`: a `close` in front of the first `open` means false.
///
/// Returns true if at least one byte stands between them. Otherwise (one is missing, they are
/// neighbours, in the wrong order or the same byte) returns false and leaves `out` untouched.
///
///     Orbane::Zeph_Get_SubString("at (3)", '(', ')', out);  // true, out holds "3"
ZEPH_API bool Zeph_Get_SubString(const std::string& text, char open, char close, std::string& out);

/// Takes a slice with fewer questions.
///
/// The byte text form copies exactly `count` bytes from `text + start`, zero bytes included, and
/// writes a terminator to `out[count]`: the caller knows that they are there, and gives `out` room
/// for `count + 1` bytes that do not overlap them. A negative `start` or `count` copies nothing and
/// gives the empty text.
///
/// The String form cuts the slice at the end of the text, a negative `count` takes all the rest,
/// and `start` equal to the size gives the empty text. A `start` behind that or below 0 throws
/// `std::out_of_range` ("invalid string position") and leaves `out` untouched.
///@{
ZEPH_API void Zeph_Ext_Str_From_Str(const char* text, int start, int count, char* out);
ZEPH_API void Zeph_Ext_Str_From_Str(const std::string& text, int start, int count,
                                    std::string& out);
///@}

/// Copies what stands behind the last '/' or '\' of `path`, the whole of it if there is neither,
/// cut at `size` bytes; a `size` below 1 gives the empty text. `out` has room for `size + 1` bytes.
/// Both separators count on every system. A byte is a byte: the second half of a double-byte
/// character can be a 0x5C and then counts as a separator.
///
///     char name[9];
///     Orbane::Zeph_Ext_Name_From_FullPath(name, "c:\\log/today.txt", 8);  // "today.tx"
ZEPH_API void Zeph_Ext_Name_From_FullPath(char* out, const char* path, int size);

/// What stands in front of the *first* occurrence of the marker: the text "a=b=c" gives "a" for the
/// marker '='. A missing marker gives the whole text, an empty one the empty text.
///
/// The forms with `out` replace it by the result; it may be `text` or `marker`.
///@{
ZEPH_API std::string Zeph_Left(const std::string& text, const std::string& marker);
ZEPH_API std::string Zeph_Left(const std::string& text, char marker);
ZEPH_API void Zeph_Left(const std::string& text, const std::string& marker, std::string& out);
ZEPH_API void Zeph_Left(const std::string& text, char marker, std::string& out);
///@}

/// What stands behind the *last* occurrence of the marker, for a longer one that which starts last:
/// the text "a=b=c" gives "c" for the marker '='. A missing marker gives the whole text, an empty
/// one the empty text.
///
/// The forms with `out` replace it by the result; it may be `text` or `marker`.
///@{
ZEPH_API std::string Zeph_Right(const std::string& text, const std::string& marker);
ZEPH_API std::string Zeph_Right(const std::string& text, char marker);
ZEPH_API void Zeph_Right(const std::string& text, const std::string& marker, std::string& out);
ZEPH_API void Zeph_Right(const std::string& text, char marker, std::string& out);
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
/// the input object. The buffers are requested in order; unless an output is the input object, each
/// is given back before the next one is requested. If the heap refuses a work buffer, each refusal
/// is reported as "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem", and all outputs keep what they
/// held.
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

/// @defgroup reverse Fields from the right
/// Fields are cut off the right end of a text: output 1 takes the rightmost one, and the last
/// output takes the remainder, the head of the text in one piece with all separators in it.
///
/// There is no limit: each output has room for what it receives and a terminator, and the length of
/// the text + 1 bytes is enough for every one. Every output is written on every call. With too few
/// separators the outputs fill from the right all the same: the head goes to the first output that
/// is still free, and those behind it become the empty text.
///
/// Outputs must not overlap each other. The last output, and it alone, may be the text itself: the
/// text is then cut in place, or becomes the empty text where its head has gone to an earlier
/// output. Otherwise the text is not changed.
/// @{

/// Cuts at blanks; a run of blanks is one separator and belongs to no output. Blanks at the end of
/// the text make output 1 the empty text; blanks at its start stay in the remainder if all the cuts
/// were made before them.
///
///     char line[] = "door 2 open", state[12];
///     Orbane::Zeph_Seperate_Reverse(line, state, line);  // "open", line holds "door 2"
///@{
ZEPH_API void Zeph_Seperate_Reverse(char* text, char* field1, char* field2);
ZEPH_API void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3);
ZEPH_API void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3,
                                    char* field4);
ZEPH_API void Zeph_Seperate_Reverse(char* text, char* field1, char* field2, char* field3,
                                    char* field4, char* field5);
///@}

/// Cuts at each byte equal to `delimiter`; between two in a row stands an empty field. A zero
/// `delimiter` is never found.
///
///     char tail[9], middle[9], head[9];
///     Orbane::Zeph_Seperate_Char_Reverse(text, ',', tail, middle, head);
///     // "1,2,3,4" gives "4", "3", "1,2";  "3,4" gives "4", "3", ""
///@{
ZEPH_API void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2);
ZEPH_API void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                         char* field3);
ZEPH_API void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                         char* field3, char* field4);
ZEPH_API void Zeph_Seperate_Char_Reverse(char* text, char delimiter, char* field1, char* field2,
                                         char* field3, char* field4, char* field5);
///@}

/// @}

/// @defgroup indexed Fields by index
/// A byte text taken as a list: from an index to a field, and from a value to its index. Indexes
/// count from 0.
///
/// The two directions are not inverse to each other. The first counts *words*, which are never
/// empty: separators in a row are one, and those at the ends count for nothing, for a delimiter as
/// for the blank. The second counts *items*, which are what Zeph_Seperate() and
/// Zeph_Seperate_Char() cut off the front:
///
/// | text          | separator | word 0, word 1 | items                            |
/// |---------------|-----------|----------------|----------------------------------|
/// | " red green"  | blank     | "red", "green" | 0: "", 1: "red", 2: "green"      |
/// | "red,,green"  | ','       | "red", "green" | 0: "red", 1: "", 2: "green"      |
/// | "red,"        | ','       | "red", ""      | 0: "red" (no item behind the end) |
/// @{

/// Copies the word number `index`, cut at `limit` bytes, to `out`, which has room for `limit + 1`
/// bytes and is written on every call. An index below 0 or behind the last word gives the empty
/// text, and so does a `limit` below 1.
///
///     char word[9];
///     Orbane::Zeph_Seperate_With_Index("red green", word, 1, 8);  // "green"
///@{
ZEPH_API void Zeph_Seperate_With_Index(const char* text, char* out, int index, int limit);
ZEPH_API void Zeph_Seperate_Char_With_Index(const char* text, char delimiter, char* out, int index,
                                            int limit);
///@}

/// Returns the index of the first item that equals `value`, or -1 if none does; an index beyond an
/// `int` is told as the largest one. Items compare as in Zeph_Compare(), those of the members with
/// `_L` as in Zeph_Compare_L().
///
/// Takes two work buffers of the list's length + 1 bytes, one after the other. If the heap refuses
/// one, each refusal is reported as "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem", and the result
/// is -1. The time is proportional to the list's length.
///
///     Orbane::Zeph_Seperate_Char_Get_Index("idle,run,down", ',', "run");  // 1
///@{
ZEPH_API int Zeph_Seperate_Get_Index(const char* list, const char* value);
ZEPH_API int Zeph_Seperate_Get_Index_L(const char* list, const char* value);
ZEPH_API int Zeph_Seperate_Char_Get_Index(const char* list, char delimiter, const char* value);
ZEPH_API int Zeph_Seperate_Char_Get_Index_L(const char* list, char delimiter, const char* value);
///@}

/// @}

/// @defgroup lists Lists
/// A String to a list of Strings and back, for any number of items, by the stored sizes: zero bytes
/// are ordinary bytes, and so is a zero `delimiter`. The two are not inverse to each other: a split
/// drops empty items, a join keeps them.
/// @{

/// Appends the items of `text` to `list`, which keeps what it holds. Every delimiter ends an item;
/// empty items are dropped wherever they arise. `text` may be an item of the list. Items appended
/// before an exception stay.
///
///     std::vector<std::string> list;
///     Orbane::Zeph_Split("red,,green,", ',', list);  // "red", "green"
ZEPH_API void Zeph_Split(const std::string& text, char delimiter, std::vector<std::string>& list);

/// Joins all items, the empty ones too, with one delimiter between two of them. The form with `out`
/// clears it first; if it is an item of the list itself, that item joins as empty.
///@{
ZEPH_API std::string Zeph_Join(const std::vector<std::string>& list, char delimiter);
ZEPH_API void Zeph_Join(const std::vector<std::string>& list, char delimiter, std::string& out);
///@}

/// @}

/// @defgroup numbers Numbers
/// Is a text a number, and which? Three strictness levels for reading, and real numbers as texts.
///
/// |                | strict: Check, To         | lenient: Ext_..._From_Str | filter: HexStr |
/// |----------------|---------------------------|---------------------------|----------------|
/// | a foreign byte | refuses the text          | ends the number           | is skipped     |
/// | blanks ahead   | refused                   | skipped                   | skipped        |
/// | integer "+5"   | refused                   | 5                         | 5              |
/// | integer "0x1F" | 31                        | 0                         | 31             |
/// | no digit       | integers 0, reals refused | 0, but "inf" and "nan"    | 0              |
///
/// *Bounds*: a value passes if `minimum <= value <= maximum`. Two equal bounds are no bound at all:
/// (5, 5) does not ask for the value 5. A minimum above the maximum refuses every value; a
/// bound that is not-a-number bounds nothing. The value is stored in either case.
///
/// *Slices*: `start` and `count` select the bytes from index `start` to `start + count - 1`. Both
/// are not negative and lie within the text; neither is tested against it. A pair of numbers in
/// front of the output is always minimum and maximum, a pair behind it always start and count. The
/// slice is read as a text of its own: what stands behind it has no part, and a zero byte among its
/// bytes ends it early.
///
/// A String is read up to its first zero byte. Outputs are not NULL. Overflow is never reported.
///
///     int speed;
///     Orbane::Zeph_To_Int("rpm=1200", &speed, 4, 4);    // true, speed is 1200
///     double level;
///     Orbane::Zeph_To_Double("7.25", 0.0, 9.5, &level); // true, within the bounds
/// @{

/// Is the byte text a decimal number of 8 bits?
///
/// The text is an optional '-' as its first byte and then digits, none or any number of them; there
/// is no '+' and no hexadecimal form. The value is taken modulo 256 and read as a signed 8-bit
/// number: "200" is -56, "300" is 44; "" and "-" are 0. The bounds are signed 8-bit numbers too,
/// also where `char` is unsigned.
///
/// Returns true if the whole text is such a number and passes the bounds. At a foreign byte returns
/// false and leaves in `*value` the digits in front of it, without a sign.
ZEPH_API bool Zeph_Char_Num_Check(const char* text, char minimum, char maximum, char* value);

/// Is the text an integer text?
///
/// It is an optional '-' as the first byte, and then either "0x" or "0X" and hexadecimal digits, or
/// decimal digits. No '+', no blank, no octal form: "0123" is one hundred and twenty-three. The
/// digits may be missing: "", "-", "0x" and "-0x" are integer texts of value 0.
///
/// Returns 0 if it is none, 2 if it is one with a '-' ("-0" too), else 1. Reading stops at the
/// first foreign byte.
///@{
ZEPH_API int Zeph_Int_Check(const char* text);
ZEPH_API int Zeph_Int_Check(const std::string& text);
///@}

/// Reads an integer text, as Zeph_Int_Check() tells what that is.
///
/// The value is taken modulo 2^32 and read as a signed number: "2147483648" is -2147483648,
/// "4294967297" is 1, "0xFFFFFFFF" is -1.
///
/// Returns true if the whole text, or the slice, is an integer text and its value passes the
/// bounds. `*value` is written on the way: a text with a foreign byte gives false and leaves the
/// digits in front of it, without a sign ("-12a" leaves 12, "+5" leaves 0); a value outside the
/// bounds gives false and stays.
///
/// The slice forms ask for a work buffer of `count + 1` bytes. If the heap refuses it, or `count`
/// is negative, they report "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem", return false and leave
/// `*value` as it was.
///@{
ZEPH_API bool Zeph_To_Int(const char* text, int* value);
ZEPH_API bool Zeph_To_Int(const std::string& text, int* value);
ZEPH_API bool Zeph_To_Int(const char* text, int* value, int start, int count);
ZEPH_API bool Zeph_To_Int(const std::string& text, int* value, int start, int count);
ZEPH_API bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value);
ZEPH_API bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value);
ZEPH_API bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value, int start,
                          int count);
ZEPH_API bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value, int start,
                          int count);
///@}

/// Reads the integer at the start of a slice as the runtime's `atoi` does: white space and a sign
/// in front are taken, reading stops at the first byte that is no digit, no digits give 0. What a
/// number beyond an `int` gives is up to the runtime.
///
/// Without `buffer` the slice has at most 255 bytes. A longer one, and a negative `count` with it,
/// is reported as "[Zeph] Ext_Int_From_Str Size Error" and gives 0.
///
/// With `buffer` there is no limit: it has room for `count + 1` bytes, holds the slice as a text
/// afterwards, and may overlap `text`. A negative `count` gives 0 and leaves it untouched, without
/// a report.
///@{
ZEPH_API int Zeph_Ext_Int_From_Str(const char* text, int start, int count);
ZEPH_API int Zeph_Ext_Int_From_Str(const char* text, int start, int count, char* buffer);
///@}

/// Reads the hexadecimal digits of a text or slice as one number and skips every other byte, so
/// that "0x1F" and "1 F" are 31 and "-1" is 1.
///
/// The value is taken modulo 2^32 and read as a signed number: the last eight digits count, and
/// "FFFFFFFF" is -1. No digits give 0. The slice form does not look for a terminator: a zero byte
/// is skipped like any other. A `count` of 0 or below gives 0.
///@{
ZEPH_API int Zeph_HexStr_to_DecInt(const char* text);
ZEPH_API int Zeph_HexStr_to_DecInt(const char* text, int start, int count);
///@}

/// Is the text a real-number text? The test counts bytes and looks at no order.
///
/// A text passes if it has at least one digit, at most one '.', one exponent letter ('e' or 'E'),
/// two '-' and two '+', and no other byte. So "1-2", "5e", "e5" and "--5" pass, and blanks, a
/// hexadecimal form, "inf" and the empty text do not.
///
/// Returns 0 if the text fails, 2 if it passes and holds exactly one '-', wherever that stands,
/// else 1. The code says nothing of the value's sign: "1e-5" gives 2, "-1e-5" gives 1.
///@{
ZEPH_API int Zeph_Double_Check(const char* text);
ZEPH_API int Zeph_Double_Check(const std::string& text);
///@}

/// Reads a real-number text.
///
/// The test of Zeph_Double_Check() alone decides whether the text is one. A text, or slice, that
/// fails gives false and leaves `*value` as it was, unlike in Zeph_To_Int().
///
/// The value is what `sscanf` reads with "%lf", in the process's locale, from the start of the text
/// up to the first byte that it cannot use: "5-3" is 5, "1.5e3-" is 1500, "5e" is 5. A text that
/// passes the test but starts with no number, as "e5" and "+-5", is 0.0. With a '.' as decimal
/// point the value is the nearest double, ties to the even one; too large a value is infinite.
/// Returns true if the value passes the bounds; outside of them it is stored all the same.
///
/// The slice forms ask for a work buffer of `count + 1` bytes. If the heap refuses it, or `count`
/// is negative, they report "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem", return false and leave
/// `*value` as it was.
///@{
ZEPH_API bool Zeph_To_Double(const char* text, double* value);
ZEPH_API bool Zeph_To_Double(const std::string& text, double* value);
ZEPH_API bool Zeph_To_Double(const char* text, double* value, int start, int count);
ZEPH_API bool Zeph_To_Double(const std::string& text, double* value, int start, int count);
ZEPH_API bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value);
ZEPH_API bool Zeph_To_Double(const std::string& text, double minimum, double maximum,
                             double* value);
ZEPH_API bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value,
                             int start, int count);
ZEPH_API bool Zeph_To_Double(const std::string& text, double minimum, double maximum, double* value,
                             int start, int count);
///@}

/// Reads the real number at the start of a slice as the runtime's `atof` does, in the process's
/// locale: white space in front is taken, reading stops at the first byte that cannot belong to the
/// number, no number gives 0.0.
///
/// Without `buffer` the slice has at most 255 bytes. A longer one, and a negative `count` with it,
/// is reported as "[ZEPH_API] Ext_Dbl_From_Str Size Error" and gives 0.0.
///
/// With `buffer` there is no limit: it has room for `count + 1` bytes, holds the slice as a text
/// afterwards, and may overlap `text`. A negative `count` gives 0.0 and leaves it untouched,
/// without a report.
///@{
ZEPH_API double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count);
ZEPH_API double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count, char* buffer);
///@}

/// Writes a real number; `precision` picks the form.
///
/// 0 to 10 is fixed notation with so many decimals, -1 to -10 exponent notation with so many
/// decimals, and any other code fixed notation with six. The last digit is rounded from the exact
/// value of the double, a tie to the even digit: 2.5 with 0 decimals is "2". The decimal point is
/// that of the process's locale, and infinity and NaN are written as the runtime's `printf` writes
/// them. An exponent has at least two digits ("1.5e+03"); from a runtime that always writes three,
/// leading zeros are taken out ("1.5e+3").
///
/// `out` has room for 64 bytes: a text is cut at 63 bytes, which only fixed notation of 1e51 and
/// above can reach. Bytes behind the terminator stay as they were.
///
///     char text[64];
///     Orbane::Zeph_Conv_Dbl_To_Str(1234.5678, 2, text);   // "1234.57"
///     Orbane::Zeph_Conv_Dbl_To_Str(1234.5678, -2, text);  // "1.23e+03"
ZEPH_API void Zeph_Conv_Dbl_To_Str(double value, int precision, char* const out);

/// @}

/// @defgroup replace Replace and remove
/// Bytes and pieces of a text are replaced or cut out in place, byte by byte exactly.
///
/// The forms differ in where the search goes on after a change, and so in their results:
///
/// | form                              | after a change         | "aaabb", "ab" becomes "b" |
/// |-----------------------------------|------------------------|---------------------------|
/// | replace a piece of a String       | behind the replacement | "aabb"                    |
/// | replace a piece of a byte text    | from the start again   | "bb"                      |
/// | remove a piece, both kinds        | from the start again   |                           |
///
/// Where it starts again, no occurrence is left in the end, also none that the changes themselves
/// have formed: removing "ab" from "aabb" leaves nothing. Only the bytes around a change are
/// searched again, so that the time follows the text's length and the work of the changes.
///
/// The byte text forms end at the first zero byte, of patterns and replacements too, which must not
/// lie inside the text; bytes behind the new terminator may change. The String forms go by the
/// stored sizes, zero bytes are ordinary bytes, and pattern and replacement may be the text itself,
/// which counts as it was at the start. An empty pattern changes nothing. Nothing is reported.
/// @{

/// Every byte equal to `find` becomes `replacement`. The byte text form works on the length that it
/// finds at the start, and returns `text`: a zero `find` matches nothing there, and a zero
/// `replacement` ends the text at the first match while the rest stays behind it, replaced too.
///@{
ZEPH_API const char* Zeph_Replace(char* text, char find, char replacement);
ZEPH_API void Zeph_Replace(std::string& text, char find, char replacement);
///@}

/// Every occurrence of `pattern` becomes `replacement`; what is inserted is not searched again.
///
///     std::string text = "a.b.c";
///     Orbane::Zeph_Replace(text, ".", " . ");  // "a . b . c"
ZEPH_API void Zeph_Replace(std::string& text, const std::string& pattern,
                           const std::string& replacement);

/// Every occurrence of `pattern` becomes `replacement`, from the start of the text again after each
/// change.
///
/// `text` has room for the longest text that arises at any step and a terminator; with the longer
/// replacement that is the final one. No more than that is ever written.
///
/// Pairs that might never end are bounded, and leave the text as it was: a replacement that
/// contains the pattern; and a replacement not shorter than the pattern that takes more changes
/// than the text has bytes, if these work through more than 64 MiB, pattern and replacement
/// counted for each change. "ab" that becomes "ba" sorts thousands of bytes before that.
///
/// Where a replacement not shorter than the pattern may form new occurrences, or the pattern has
/// more than 64 bytes, the work is done in a heap block; if the heap refuses it, the text stays as
/// it was. All other pairs need no heap.
ZEPH_API void Zeph_Replace(char* text, const char* pattern, const char* replacement);

/// Every occurrence of `pattern` is cut out, from the start of the text again after each cut. The
/// String keeps its capacity.
///@{
ZEPH_API void Zeph_Remove(std::string& text, const std::string& pattern);
ZEPH_API void Zeph_Remove(char* text, const char* pattern);
///@}

/// Every byte equal to `byte` is cut out. A zero `byte` cuts nothing out: zero bytes stay.
ZEPH_API void Zeph_Remove(std::string& text, char byte);

/// @}

/// @defgroup enclosures Enclosing marks
/// Marks at the two ends of a text are taken off, at most one byte at each end. Marks inside stay,
/// and so does a second mark behind the first. Nothing pairs the marks: '(' and '>' go as well
/// together as '(' and ')'.
///
/// The byte text forms end at the first zero byte and work in place; bytes behind the new
/// terminator may change. The String forms go by the stored size and keep the capacity.
/// @{

/// Takes the double quotes off a quoted text. The four forms differ in how strictly the two ends
/// belong together:
///
/// | form                 | one end quoted         | result                               |
/// |----------------------|------------------------|--------------------------------------|
/// | byte text, in place  | unchanged              |                                      |
/// | byte text to `out`   | false, `out` untouched | true if both ends were quoted        |
/// | String, in place     | that quote goes        |                                      |
/// | String to `out`      | that quote goes, false | true if both quotes were taken off   |
///
/// `limit` bounds the bytes between the quotes; a longer text is refused with false and `out`
/// untouched. That `out` has room for `limit + 1` bytes. The String `out` is written whatever the
/// result is, and may be `text`. A text of one double quote keeps it in the byte text forms (false)
/// and loses it in the String forms (false).
///
///     char name[9];
///     Orbane::Zeph_String_Check("\"A 17\"", 8, name);  // true, name holds "A 17"
///@{
ZEPH_API void Zeph_String_Check(char* text);
ZEPH_API bool Zeph_String_Check(const char* text, int limit, char* out);
ZEPH_API void Zeph_String_Check(std::string& text);
ZEPH_API bool Zeph_String_Check(const std::string& text, std::string& out);
///@}

/// Takes a double or a single quote off each end, each end by itself. A text of one quote becomes
/// the empty text.
///@{
ZEPH_API void Zeph_Remove_QuoteMark(std::string& text);
ZEPH_API void Zeph_Remove_QuoteMark(char* text);
///@}

/// Takes an opening bracket, one of "([{<", off the start and a closing one, one of ")]}>", off the
/// end, each end by itself. A text of one opening bracket becomes the empty text, a text of one
/// closing bracket stays.
///@{
ZEPH_API void Zeph_Remove_Bracket(std::string& text);
ZEPH_API void Zeph_Remove_Bracket(char* text);
///@}

/// Takes the byte `mark` off each end, each end by itself. A text of one mark becomes empty.
ZEPH_API void Zeph_Remove_HeadTail(std::string& text, char mark);

/// @}

/// @defgroup compose Composition
/// Texts put together: appended, printed, and joined half by half.
/// @{

/// Appends to the byte text `text` and returns `text`, whose room is the length of the result + 1
/// bytes. It adds
/// - a byte text, which may lie inside `text`: all of it;
/// - a byte: that byte, nothing for a zero byte;
/// - an `int`: decimal digits, behind a '-' if it is negative, at most 11 bytes;
/// - a `float` or a `double`: as "%f" prints it, with six digits behind the decimal point of the
///   process's locale and no exponent, at most 47 and 317 bytes.
///
///     char line[32] = "slot ";
///     Orbane::Zeph_Cat(Orbane::Zeph_Cat(line, 7), ": ready");  // "slot 7: ready"
///@{
ZEPH_API char* Zeph_Cat(char* text, const char* more);
ZEPH_API char* Zeph_Cat(char* text, char byte);
ZEPH_API char* Zeph_Cat(char* text, int value);
ZEPH_API char* Zeph_Cat(char* text, float value);
ZEPH_API char* Zeph_Cat(char* text, double value);
///@}

/// Prints a format of the `printf` family into a new String. `size` is the size of a buffer,
/// terminator included, and no count of arguments: the text is cut at `size - 1` bytes without a
/// report, and ends at its first zero byte. A `size` of 0 or 1 gives the empty text, a negative one
/// throws `std::bad_alloc`. Follows the process's locale.
///
///     Orbane::Zeph_Splicing(64, "%s=%d", "speed", 12);  // "speed=12"
ZEPH_API std::string Zeph_Splicing(int size, const char* format, ...) ZEPH_FORMAT(2, 3);

/// Joins two to six alarm texts into the first one. An alarm text has two halves around its first
/// '|'; further ones belong to the second half. The result is all first halves with a blank between
/// two of them, a '|', and all second halves in the same way; the blanks come also around an empty
/// half. A text without a second half stands with its first half on both sides; an empty first half
/// stays empty.
///
/// The result is cut at 511 bytes, wherever that falls: `text1` has room for it and its terminator,
/// 512 bytes at most. All texts are read before it is written, so that they may overlap. Halves of
/// any length are safe. No heap is used.
///
///     char text[512] = "DOOR OPEN|door open";
///     Orbane::Zeph_Strcat_Alarm_Append_Text(text, "CHAMBER 2");
///     // "DOOR OPEN CHAMBER 2|door open CHAMBER 2"
///@{
ZEPH_API void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2);
ZEPH_API void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3);
ZEPH_API void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                            const char* text4);
ZEPH_API void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                            const char* text4, const char* text5);
ZEPH_API void Zeph_Strcat_Alarm_Append_Text(char* text1, const char* text2, const char* text3,
                                            const char* text4, const char* text5,
                                            const char* text6);
///@}

/// @}

/// @defgroup dump Dumps and message names
/// Bytes shown as hexadecimal numbers, and message names of the form S1F13.
/// @{

/// Shows bytes as a row of hexadecimal numbers with one blank between two of them. Without `count`
/// the bytes are a byte text; with it, they are `count` bytes, zero bytes among them, and a `count`
/// below 1 gives the empty text.
///
/// The two kinds of results differ in style: a String has lower-case digits, as few as a byte
/// needs; an owned buffer has upper-case digits, two for each byte:
///
/// | bytes       | String      | owned buffer  |
/// |-------------|-------------|---------------|
/// | 48 0A FF 00 | "48 a ff 0" | "48 0A FF 00" |
///
/// `*buffer` is an owned buffer, NULL or a block, which Zeph_Prepare_Mem() makes hold
/// 3 * the number of bytes + 1 bytes; a block that has them is kept. The bytes to show must not lie
/// in it. Returns `*buffer`, which the caller ends with Zeph_Release_Mem(). If the heap refuses,
/// its report is Zeph_Prepare_Mem()'s, and the result is NULL.
///@{
ZEPH_API std::string Zeph_To_Ascii(const char* text);
ZEPH_API std::string Zeph_To_Ascii(const char* bytes, int count);
ZEPH_API char* Zeph_To_Ascii(const char* text, char** buffer);
ZEPH_API char* Zeph_To_Ascii(const char* bytes, int count, char** buffer);
///@}

/// Reads a message name: 'S', a number, 'F', a number, as the standard SECS-II (SEMI E5) names a
/// message by its stream and function. The letters may be of either case, as Zeph_Find_Position_L()
/// finds them; the first 'F' of the text ends the stream number. Both numbers follow the grammar of
/// Zeph_To_Int() and lie in 0 to 255: "S01F002", "S0x10F0xFF" and "S-0F1" are names, and so is
/// "S-F1", whose stream is 0.
///
/// Returns true and stores the numbers, each where its pointer is not NULL. Otherwise returns false
/// and leaves both untouched; any byte in front of the S means false.
///
/// Takes a work buffer for each number. If the heap refuses one, it is reported as "[Zeph] Memory
/// calloc Fail in Zeph_Prepare_Mem", and the result is false.
///
///     unsigned char stream, function;
///     Orbane::Zeph_Check_SxxFxx("S6F11", &stream, &function);  // true, 6 and 11
ZEPH_API bool Zeph_Check_SxxFxx(const char* text, unsigned char* stream, unsigned char* function);

/// @}

/// @defgroup codepage Code pages
/// UTF-8 to and from ANSI, which is code page 936 here, whatever code page the system uses.
///
/// `text` is a byte text; NULL is the empty text. The String forms read the object up to its first
/// zero byte and do not change it, in spite of the non-constant reference. The result is a new
/// String, and the only thing that takes heap; a long one may have more capacity than it needs. Its
/// bytes are the same on every platform: the library converts by the published code page 936,
/// character by character through UTF-16.
///
/// ASCII passes unchanged. Nothing tells of what could not be converted; a text in the wrong
/// encoding, or one that is converted twice, gives a result like any other. A text that is cut in
/// the middle of a character is read up to its terminator and no further.
///
///     std::string ansi = Orbane::Zeph_UTF8_to_ANSI("\xE6\xB8\xA9 25");  // "\xCE\xC2 25"
///     Orbane::Zeph_ANSI_to_UTF8(ansi);                                  // the first text again
/// @{

/// Returns the UTF-8 text `text` in code page 936. No longer than `text`.
///
/// A character that the code page lacks becomes '?', one beyond U+FFFF "??", one for each of its
/// two UTF-16 units. There are 412 exceptions: U+00AA, for example, becomes 'a', because the code
/// page has a look-alike; none of these converts back to what it was.
///
/// Bytes that are not well-formed UTF-8 count as U+FFFD, which the code page lacks, and so become
/// '?': one for each maximal part that could have begun a character, as the Unicode Standard
/// recommends in its section 3.9. A character cut short by the end of the text is one '?'; an
/// overlong form or half of a surrogate pair is one '?' for each byte.
///@{
ZEPH_API std::string Zeph_UTF8_to_ANSI(std::string& text);
ZEPH_API std::string Zeph_UTF8_to_ANSI(const char* text);
///@}

/// Returns the code page 936 text `text` in UTF-8. At most three times as long as `text`.
///
/// 0x80 is the euro sign and 0xFF is U+F8F5; every other byte from 0x81 on is a lead byte and takes
/// the next byte with it. A pair that the code page does not have, its second byte being below
/// 0x40, 0x7F or 0xFF, becomes one '?', and a lead byte at the very end does, too.
///@{
ZEPH_API std::string Zeph_ANSI_to_UTF8(std::string& text);
ZEPH_API std::string Zeph_ANSI_to_UTF8(const char* text);
///@}

/// @}

/// @defgroup cipher Sealed texts
/// A byte text sealed into a binary record with AES, and brought back.
///
/// What it is good for, said plainly: it keeps a text from being read in passing, by those who do
/// not have the key. Each block of 16 bytes is enciphered by itself (AES as in FIPS 197, mode ECB),
/// so that equal blocks of a text show as equal blocks of the record. Nothing protects a record
/// from change: one that was damaged, cut together from others or sealed under another key opens
/// without complaint, with meaningless bytes in it. Until Zeph_Encrypt_Reset_Key() is called, the
/// key is a built-in one, the same in every copy of the library, and so no secret at all.
///
/// A record of a text of n bytes, n up to 4,294,967,280:
///
/// | Offset | Size | Content                                                                      |
/// |--------|------|------------------------------------------------------------------------------|
/// | 0      | 4    | L, n rounded up to a multiple of 16; unsigned, little-endian everywhere      |
/// | 4      | 4    | P, the number of pad bytes, L - n, 0 to 15; unsigned, little-endian          |
/// | 8      | 8    | reserved: neither written nor read, they stay what the caller's buffer held  |
/// | 16     | L    | the text in blocks of 16 bytes, the last one filled up with 'X', enciphered  |
///
/// A record is raw binary with zero bytes anywhere, and 16 + L bytes long. The functions return L,
/// so that a caller who stores or sends the record adds the 16.
///
/// All three functions share one key and one block under work: no two calls may run at once, on any
/// threads, not even with equal keys. What they keep outlives the call: the key and the last block
/// lie in the library's memory until the process ends; working copies of the key are wiped.
///
/// Timing: where the library was built for x86 with AES instructions and the processor has them,
/// the time of a call depends on the length of the text or the key alone. Everywhere else bytes of
/// the key and the text are looked up in tables of 256 bytes; nothing branches on them, but who
/// shares the processor's cache may learn of them from the time that it takes.
///
///     unsigned char key[16] = {0x4B, 0x00, 0x91};  // zero bytes are bytes of the key
///     Orbane::Zeph_Encrypt_Reset_Key(16, key);
///     char text[] = "recipe 17";
///     char record[16 + 16] = {};
///     char back[16 + 1] = {};                      // zeros: see Zeph_Decrypt()
///     Orbane::Zeph_Encrypt(text, record);          // 16, which is L
///     Orbane::Zeph_Decrypt(record, back);          // 16, back holds "recipe 17"
/// @{

/// Takes `key`, which is `size` bytes whatever their values, as the key of all later calls, until
/// the next reset or the end of the process. `size` is 16, 24 or 32; with any other the key in
/// force stays, and `key` is not read. The default key comes back only by passing it: the 13
/// characters "QX-LM_SEALKEY" and 19 zero bytes.
ZEPH_API void Zeph_Encrypt_Reset_Key(unsigned long size, unsigned char* key);

/// Seals the byte text `text` into `record`, which has room for 16 + L bytes.
///
/// The empty text makes a record without blocks: 8 bytes are written and the result is 0. Returns
/// L. If `record` is NULL or the text is longer than a record can tell, returns 0 and writes
/// nothing. `text` may be `record + 16`, so that it is sealed in its place; otherwise they do not
/// overlap.
ZEPH_API unsigned long Zeph_Encrypt(char* text, char* record);

/// Opens `record` into `text`, which has room for L bytes: the bytes of the text, then P zero
/// bytes.
///
/// Returns L, not the length of the text, which is L - P. Two texts come back without a terminator:
/// one that fills its last block, since P is 0, and the empty one, for which nothing is written at
/// all. Who reads the result as a byte text gives room for L + 1 bytes and zeroes them beforehand.
///
/// Returns 0 and writes nothing if `text` is NULL, if L is 0 or no multiple of 16, or if P is above
/// 15; no sealed text gives such a record but the empty one. L is believed: who opens a record from
/// elsewhere holds it against the record's size first. `text` may be `record + 16`, so that it is
/// opened in its place; otherwise they do not overlap.
ZEPH_API unsigned long Zeph_Decrypt(char* record, char* text);

/// @}

/// @defgroup time Time
/// The present local time and durations as texts of a fixed form.
///
/// Each function has one result buffer for the whole process and always returns its address, never
/// NULL. The next call of the same function overwrites the text, a call of another one leaves it
/// alone; a caller that needs the text longer copies it. Nothing is to be freed. Two threads must
/// not be in the same function at once, and none may read a text while another one makes the next.
/// No function prints or allocates of its own or can fail. On POSIX systems the runtime loads the
/// time zone, from the heap and a file, at the first stamp of a process, unless the host has called
/// `tzset` before; where it cannot load the zone, stamps show UTC.
/// @{

/// Returns the present local date and time.
///
/// | Function             | Text, here of 29 July 2025  | Characters | Buffer bytes |
/// |----------------------|-----------------------------|------------|--------------|
/// | Zeph_Get_Date()      | `2025/07/29`                | 10         | 16           |
/// | Zeph_Get_Time()      | `08:05:09`                  | 8          | 16           |
/// | Zeph_Get_Time2()     | `08:05:09.042`              | 12         | 16           |
/// | Zeph_Get_DateTime()  | `2025/07/29 08:05:09`       | 19         | 24           |
/// | Zeph_Get_DateTime2() | `2025/07/29 08:05:09.042`   | 23         | 32           |
///
/// Each call reads the clock once, so that all fields belong to one instant; two calls are two
/// instants, and a date of one with a time of the other may lie a day apart. The hour runs from 00
/// to 23. The year has all its digits; one below 1000 is filled up with zeros to four, but only to
/// two by Zeph_Get_DateTime2().
///
/// The zone is that of the process, and a stamp follows the begin and the end of summer time. On
/// POSIX the C runtime reads the zone once: a host that changes the variable `TZ` calls `tzset()`
/// to make it count.
///@{
ZEPH_API const char* Zeph_Get_Date(void);
ZEPH_API const char* Zeph_Get_Time(void);
ZEPH_API const char* Zeph_Get_Time2(void);
ZEPH_API const char* Zeph_Get_DateTime(void);
ZEPH_API const char* Zeph_Get_DateTime2(void);
///@}

/// Returns a duration as "HH:MM:SS", from 24 hours on with the days in front: "D HH:MM:SS".
/// Zeph_Seconds_To_Time2() adds the milliseconds: "HH:MM:SS.mmm". The buffers have 32 bytes.
///
/// Nothing is rounded: 59.9999 is "00:00:59.999". The milliseconds are cut off the product of
/// `seconds` and 1000, as a `double` has it: 1.001 times 1000 is just below 1001, so that 1.001
/// ends in ".000" and 1.005 in ".004".
///
/// A negative duration has no days, its hours run on. Each field bears its own sign, and the sign
/// counts as one of the field's characters: -5.0 is "00:00:-5.000", -0.5 is "00:00:00.-500",
/// -90061.25 is "-25:-1:-1.-250".
///
/// The whole seconds fit an `int` from -2147483648 to 2147483647. A duration beyond that, an
/// infinite one too, shows as the last one inside: "24855 03:14:07.999" or "-596523:-14:-8.-999",
/// or the same without milliseconds. Not-a-number shows as 0.
///
///     Orbane::Zeph_Seconds_To_Time(90061.25);   // "1 01:01:01"
///     Orbane::Zeph_Seconds_To_Time2(90061.25);  // "1 01:01:01.250"
///@{
ZEPH_API const char* Zeph_Seconds_To_Time(double seconds);
ZEPH_API const char* Zeph_Seconds_To_Time2(double seconds);
///@}

/// @}

/// @defgroup syserror System errors
/// Why did the last system call fail? A text for an operator who reads Chinese.
/// @{

/// Returns the message for the last error code of the calling thread, in code page 936.
///
/// The texts are those of the library's own table, 459 codes from 0 to 1398, and the same on every
/// system. They name their code: a Chinese "system error information", then ":[5]-" and the
/// message; in the text of code 0 the word for "error" is left out. A code without a row gives a
/// Chinese "system error code" and ":[34]", with the code as a signed number of 32 bits.
///
/// The result is one buffer of 512 bytes for the whole process, the same address at every call. It
/// is cleared to its end before the text is written; the longest text has 154 bytes. The next call
/// overwrites it, also for other threads: two threads must not call at once. The code is only read,
/// never set or cleared. Nothing is printed, allocated or thrown, and every code has an answer.
///
/// On Windows the code is that of `GetLastError`. Elsewhere, if the host defines a function
/// `extern "C" uint32_t GetLastError(void)` that the dynamic linker can see, its answer is the
/// code. Otherwise it is `errno`, translated to the Windows code that means the same:
///
/// | Code  | errno                  | Code  | errno             | Code  | errno               |
/// |-------|------------------------|-------|-------------------|-------|---------------------|
/// | 2     | ENOENT                 | 160   | E2BIG             | 1229  | ENOTCONN            |
/// | 4     | EMFILE, ENFILE         | 167   | ENOLCK            | 1230  | EISCONN             |
/// | 5     | EACCES, EISDIR, EPERM  | 170   | EBUSY             | 1231  | ENETUNREACH         |
/// | 6     | EBADF, EIDRM           | 183   | EEXIST            | 1232  | EHOSTUNREACH        |
/// | 8     | ENOBUFS, ENOMEM, ENOSR | 193   | ENOEXEC           | 1235  | EINTR               |
/// | 13    | EBADMSG                | 206   | ENAMETOOLONG      | 1236  | ECONNABORTED        |
/// | 17    | EXDEV                  | 223   | EFBIG             | 1237  | EAGAIN, EWOULDBLOCK |
/// | 19    | EROFS                  | 259   | ENODATA, ENOMSG   | 1241  | EADDRNOTAVAIL       |
/// | 20    | ENODEV                 | 267   | ENOTDIR           | 1295  | EDQUOT              |
/// | 32    | ETXTBSY                | 487   | EFAULT            | 1460  | ETIME, ETIMEDOUT    |
/// | 50    | ENOTSUP, EOPNOTSUPP    | 534   | EOVERFLOW, ERANGE | 1921  | ELOOP               |
/// | 59    | EPROTO                 | 995   | ECANCELED         | 10037 | EALREADY            |
/// | 64    | ECONNRESET, ENOLINK    | 997   | EINPROGRESS       | 10038 | ENOTSOCK            |
/// | 87    | EDOM, EINVAL           | 1006  | ESTALE            | 10039 | EDESTADDRREQ        |
/// | 105   | EOWNERDEAD             | 1113  | EILSEQ            | 10040 | EMSGSIZE            |
/// | 109   | EPIPE                  | 1117  | EIO               | 10041 | EPROTOTYPE          |
/// | 112   | ENOSPC                 | 1131  | EDEADLK           | 10042 | ENOPROTOOPT         |
/// | 117   | ENOSTR, ENOTTY         | 1142  | EMLINK            | 10043 | EPROTONOSUPPORT     |
/// | 119   | ENOSYS                 | 1167  | ENXIO             | 10047 | EAFNOSUPPORT        |
/// | 128   | ECHILD                 | 1168  | ESRCH             | 10044 | ESOCKTNOSUPPORT     |
/// | 132   | ESPIPE                 | 1222  | ENETDOWN          | 10046 | EPFNOSUPPORT        |
/// | 145   | ENOTEMPTY              | 1225  | ECONNREFUSED      | 10048 | EADDRINUSE          |
/// | 10052 | ENETRESET              | 10058 | ESHUTDOWN         | 10059 | ETOOMANYREFS        |
/// | 10064 | EHOSTDOWN              | 10068 | EUSERS            | 10071 | EREMOTE             |
///
/// Any other value of `errno` stands for itself, and shows the row of that Windows code if there is
/// one. A code in this list may have no row, as 1460 has none.
///
///     if (!file) std::puts(Orbane::Zeph_Get_SysErrMsg());  // at once: other calls set errno too
ZEPH_API const char* Zeph_Get_SysErrMsg();

/// @}

}  // namespace Orbane

/// @cond
// First steps in the caller. Most comparisons end at the first byte, the others and the search for
// one byte are one service of the C library, whether a pattern stands is told by its place, most
// Strings have no blank or mark to take off, and a piece behind the end is refused: the call into
// the shared library would be most of what they cost. So compilers get these functions to put them
// in place of the call. The results are those of the exported functions, which a function pointer,
// another language or a debugger reach as ever. Define ZEPH_NO_INLINE to call the library always.
#if defined(__ELF__) && defined(__GNUC__) && !defined(ZEPH_BUILDING) && !defined(ZEPH_NO_INLINE)

#define ZEPH_SERVICE __attribute__((visibility("default"))) ZEPH_NO_PLT
#define ZEPH_STEP inline __attribute__((__always_inline__))
// For the compiler alone: no copy of such a function is ever made, and its address is the
// library's.
#define ZEPH_FIRST_STEPS extern inline __attribute__((__gnu_inline__, __always_inline__))

namespace zeph_steps {

// The C library's services by names of our own, so that they are called past the linkage table,
// too.
extern "C" {
ZEPH_SERVICE int zeph_strcmp(const char*, const char*) __asm__("strcmp");
ZEPH_SERVICE int zeph_strncmp(const char*, const char*, std::size_t) __asm__("strncmp");
ZEPH_SERVICE int zeph_strcasecmp(const char*, const char*) __asm__("strcasecmp");
ZEPH_SERVICE int zeph_strncasecmp(const char*, const char*, std::size_t) __asm__("strncasecmp");
ZEPH_SERVICE std::size_t zeph_strlen(const char*) __asm__("strlen");
ZEPH_SERVICE const char* zeph_strchr(const char*, int) __asm__("strchr");
ZEPH_SERVICE void* zeph_memset(void*, int, std::size_t) __asm__("memset");
}

// The library's function, for the rest of the way: a plain call would be taken for the step itself.
template <typename Function>
ZEPH_STEP Function* exported(Function* function) {
  __asm__("" : "+r"(function));
  return function;
}

ZEPH_STEP bool first_bytes_differ(const char* a, const char* b) {
  return __builtin_expect(*a != *b, 0);
}

// Whether no locale folds the two first bytes alike: ASCII bytes, more than a case apart.
ZEPH_STEP bool first_bytes_never_fold_alike(const char* a, const char* b) {
  const int x = static_cast<unsigned char>(*a), y = static_cast<unsigned char>(*b);
  return __builtin_expect(((x ^ y) & ~0x20) != 0, 0) && (x | y) < 0x80;
}

ZEPH_STEP bool is_quote(char byte) {
  return byte == '"' || byte == '\'';
}
ZEPH_STEP bool is_opening(char byte) {
  return byte == '(' || byte == '[' || byte == '{' || byte == '<';
}
ZEPH_STEP bool is_closing(char byte) {
  return byte == ')' || byte == ']' || byte == '}' || byte == '>';
}

ZEPH_STEP unsigned long long eight_bytes(const char* from) {
  unsigned long long word;
  __builtin_memcpy(&word, from, 8);
  return word;
}

// How many of the last bytes of a word are zero; one of the eight is not.
ZEPH_STEP std::size_t zeros_at_back(unsigned long long word) {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  return static_cast<std::size_t>(__builtin_clzll(word)) / 8;
#else
  return static_cast<std::size_t>(__builtin_ctzll(word)) / 8;
#endif
}

// What two Strings of one size show at a glance: all bits in which they differ, and a bit for a
// zero byte, which may end both texts in front of the difference.
struct Glance {
  unsigned long long difference, zeros;
};

// The highest bit of each zero byte.
ZEPH_STEP unsigned long long zeros_in(unsigned long long word) {
  const unsigned long long most = 0x7F7F7F7F7F7F7F7FULL;
  return ~(((word & most) + most) | word | most);
}

// For 8 to 16 bytes: the first and the last word.
ZEPH_STEP Glance glance_at_words(const char* a, const char* b, std::size_t size) {
  const unsigned long long first = eight_bytes(a), last = eight_bytes(a + size - 8);
  const unsigned long long difference =
      (first ^ eight_bytes(b)) | (last ^ eight_bytes(b + size - 8));
  return {difference, zeros_in(first) | zeros_in(last)};
}

typedef unsigned char Vector __attribute__((__vector_size__(16)));

ZEPH_STEP unsigned long long lanes_of(const Vector& bytes) {
  unsigned long long lanes[2];
  __builtin_memcpy(lanes, &bytes, 16);
  return lanes[0] | lanes[1];
}

// The same, gathered from pieces of 16 bytes.
struct VectorGlance {
  Vector difference, zeros;

  ZEPH_STEP void add(const char* a, const char* b) {
    Vector x, y;
    __builtin_memcpy(&x, a, 16);
    __builtin_memcpy(&y, b, 16);
    difference |= x ^ y;
    zeros |= reinterpret_cast<Vector>(x == 0);
  }
};

// For 16 to 64 bytes: from the front and from the back.
ZEPH_STEP Glance glance_at_vectors(const char* a, const char* b, std::size_t size) {
  VectorGlance glance = {};
  glance.add(a, b);
  if (__builtin_expect(size > 32, 0)) {
    glance.add(a + 16, b + 16);
    glance.add(a + size - 32, b + size - 32);
  }
  glance.add(a + size - 16, b + size - 16);
  return {lanes_of(glance.difference), lanes_of(glance.zeros)};
}

ZEPH_STEP int place_of_byte(const char* text, char byte) {
  const char* const found = zeph_strchr(text, byte);
  if (found == nullptr) return -1;
  const std::size_t place = static_cast<std::size_t>(found - text);
  return place <= __INT_MAX__ ? static_cast<int>(place) : -1;
}

}  // namespace zeph_steps

namespace Orbane {

ZEPH_FIRST_STEPS char* Zeph_Get_Mem_Str(char* text) {
  return __builtin_expect(text != nullptr, 1) ? text : zeph_steps::exported(Zeph_Get_Mem_Str)(text);
}

ZEPH_FIRST_STEPS int Zeph_Get_Mem_Size(char* text) {
  const std::size_t size = text == nullptr ? 0 : zeph_steps::zeph_strlen(text);
  return size < __INT_MAX__ ? static_cast<int>(size) : __INT_MAX__;
}

ZEPH_FIRST_STEPS char* Zeph_Set_Mem(char* block, int value, unsigned int count) {
  if (count > 0) zeph_steps::zeph_memset(block, value, count);
  return block;
}

ZEPH_FIRST_STEPS bool Zeph_Compare(const char* a, const char* b) {
  return !zeph_steps::first_bytes_differ(a, b) && zeph_steps::zeph_strcmp(a, b) == 0;
}

ZEPH_FIRST_STEPS bool Zeph_Compare(const char* a, const char* b, int n) {
  if (__builtin_expect(n != 0, 1) && zeph_steps::first_bytes_differ(a, b)) return false;
  return zeph_steps::zeph_strncmp(a, b, static_cast<std::size_t>(n)) == 0;
}

ZEPH_FIRST_STEPS bool Zeph_Compare(std::string& a, std::string& b) {
  if (*a.c_str() != *b.c_str()) return false;
  const std::size_t size = a.size();
  if (__builtin_expect(size == b.size() && size >= 8 && size <= 64, 1)) {
    const zeph_steps::Glance glance = size < 16
                                          ? zeph_steps::glance_at_words(a.data(), b.data(), size)
                                          : zeph_steps::glance_at_vectors(a.data(), b.data(), size);
    if (__builtin_expect((glance.difference == 0) | (glance.zeros == 0), 1)) {
      return glance.difference == 0;
    }
  }
  if (size <= 64) return zeph_steps::zeph_strcmp(a.c_str(), b.c_str()) == 0;
  return zeph_steps::exported<bool(std::string&, std::string&)>(Zeph_Compare)(a, b);
}

ZEPH_FIRST_STEPS bool Zeph_Compare(std::string& a, std::string& b, int n) {
  if (__builtin_expect(n != 0, 1) && zeph_steps::first_bytes_differ(a.c_str(), b.c_str()))
    return false;
  if (n >= 0 && n <= 64) {
    return zeph_steps::zeph_strncmp(a.c_str(), b.c_str(), static_cast<std::size_t>(n)) == 0;
  }
  return zeph_steps::exported<bool(std::string&, std::string&, int)>(Zeph_Compare)(a, b, n);
}

ZEPH_FIRST_STEPS bool Zeph_Compare_L(const char* a, const char* b) {
  return !zeph_steps::first_bytes_never_fold_alike(a, b) && zeph_steps::zeph_strcasecmp(a, b) == 0;
}

ZEPH_FIRST_STEPS bool Zeph_Compare_L(const char* a, const char* b, int n) {
  if (__builtin_expect(n != 0, 1) && zeph_steps::first_bytes_never_fold_alike(a, b)) return false;
  return zeph_steps::zeph_strncasecmp(a, b, static_cast<std::size_t>(n)) == 0;
}

ZEPH_FIRST_STEPS bool Zeph_Compare_L(std::string& a, std::string& b) {
  if (zeph_steps::first_bytes_never_fold_alike(a.c_str(), b.c_str())) return false;
  if (__builtin_expect(a.size() < 256, 1)) {
    return zeph_steps::zeph_strcasecmp(a.c_str(), b.c_str()) == 0;
  }
  return zeph_steps::exported<bool(std::string&, std::string&)>(Zeph_Compare_L)(a, b);
}

ZEPH_FIRST_STEPS bool Zeph_Compare_L(std::string& a, std::string& b, int n) {
  if (__builtin_expect(n != 0, 1) &&
      zeph_steps::first_bytes_never_fold_alike(a.c_str(), b.c_str())) {
    return false;
  }
  if (n >= 0 && n < 256) {
    return zeph_steps::zeph_strncasecmp(a.c_str(), b.c_str(), static_cast<std::size_t>(n)) == 0;
  }
  return zeph_steps::exported<bool(std::string&, std::string&, int)>(Zeph_Compare_L)(a, b, n);
}

ZEPH_FIRST_STEPS int Zeph_Find_Position(const char* text, const char* pattern) {
  if (*pattern != '\0' && pattern[1] == '\0') return zeph_steps::place_of_byte(text, *pattern);
  return zeph_steps::exported<int(const char*, const char*)>(Zeph_Find_Position)(text, pattern);
}

ZEPH_FIRST_STEPS bool Zeph_Find_SubString(const char* text, const char* pattern) {
  return Zeph_Find_Position(text, pattern) >= 0;
}

ZEPH_FIRST_STEPS bool Zeph_Find_SubString(const char* text, int start, int end,
                                          const char* pattern) {
  return Zeph_Find_Position(text, start, end, pattern) >= 0;
}

ZEPH_FIRST_STEPS bool Zeph_Find_SubString_L(const char* text, const char* pattern) {
  return Zeph_Find_Position_L(text, pattern) >= 0;
}

ZEPH_FIRST_STEPS bool Zeph_Find_SubString_L(const char* text, int start, int end,
                                            const char* pattern) {
  return Zeph_Find_Position_L(text, start, end, pattern) >= 0;
}

ZEPH_FIRST_STEPS bool Zeph_Get_SubString(const std::string& text, int start, int count,
                                         std::string& out) {
  if (start >= 0 && static_cast<std::size_t>(start) >= text.size()) return false;
  using Get = bool(const std::string&, int, int, std::string&);
  return zeph_steps::exported<Get>(Zeph_Get_SubString)(text, start, count, out);
}

// Up to seven blanks go by one look at the last word.
ZEPH_FIRST_STEPS void Zeph_Del_TailSpace(std::string& text) {
  const std::size_t size = text.size();
  if (size == 0 || text[size - 1] != ' ') return;
  if (size >= 8) {
    const char* const last = text.data() + size - 8;
    const unsigned long long others = zeph_steps::eight_bytes(last) ^ 0x2020202020202020ULL;
    if (others != 0) return void(text.erase(size - zeph_steps::zeros_at_back(others)));
  }
  zeph_steps::exported<void(std::string&)>(Zeph_Del_TailSpace)(text);
}

ZEPH_FIRST_STEPS void Zeph_Del_HeadSpace(std::string& text) {
  if (text.empty() || text.front() != ' ') return;
  zeph_steps::exported<void(std::string&)>(Zeph_Del_HeadSpace)(text);
}

ZEPH_FIRST_STEPS void Zeph_Trimed(std::string& text) {
  if (text.empty() || (text.front() != ' ' && text.back() != ' ')) return;
  zeph_steps::exported<void(std::string&)>(Zeph_Trimed)(text);
}

ZEPH_FIRST_STEPS void Zeph_String_Check(std::string& text) {
  if (text.empty() || (text.front() != '"' && text.back() != '"')) return;
  zeph_steps::exported<void(std::string&)>(Zeph_String_Check)(text);
}

ZEPH_FIRST_STEPS void Zeph_Remove_QuoteMark(std::string& text) {
  if (text.empty() || !(zeph_steps::is_quote(text.front()) || zeph_steps::is_quote(text.back())))
    return;
  zeph_steps::exported<void(std::string&)>(Zeph_Remove_QuoteMark)(text);
}

ZEPH_FIRST_STEPS void Zeph_Remove_Bracket(std::string& text) {
  if (text.empty() ||
      !(zeph_steps::is_opening(text.front()) || zeph_steps::is_closing(text.back())))
    return;
  zeph_steps::exported<void(std::string&)>(Zeph_Remove_Bracket)(text);
}

ZEPH_FIRST_STEPS void Zeph_Remove_HeadTail(std::string& text, char mark) {
  if (text.empty() || (text.front() != mark && text.back() != mark)) return;
  zeph_steps::exported<void(std::string&, char)>(Zeph_Remove_HeadTail)(text, mark);
}

}  // namespace Orbane

#endif
/// @endcond

#endif  // ZEPH_H
