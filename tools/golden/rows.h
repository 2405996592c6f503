// A row of the golden table: a call and what it gives, as one line of text.
//
//     Zeph_Seperate_Char bytes 3 | red,,green | , | 16 -> red | | green
//
// In front of the first " | " stand the function and what chooses the overload; then the arguments.
// Behind " -> " stand the result, if the function has one, and then the outputs. Parts are divided
// by " | "; in a part the backslash, the bar and all bytes but printable ASCII are written \xNN,
// and so are blanks at its ends and '>'.
#ifndef ZEPH_TOOLS_GOLDEN_ROWS_H
#define ZEPH_TOOLS_GOLDEN_ROWS_H

#include <string>
#include <vector>

namespace zeph_golden {

using Parts = std::vector<std::string>;

struct Row {
  Parts call;  // the words in front of the first " | "
  Parts arguments;
  std::string expected;  // behind " -> ", as written
};

// Whether the line is a row; empty lines and those that start with '#' are none.
bool is_row(const std::string& line);
Row parse_row(const std::string& line);

// Parts as they are written.
std::string written(const Parts& parts);

// What the call of the row gives. Throws std::invalid_argument for a call that there is not.
Parts result_of(const Row& row);

}  // namespace zeph_golden

#endif  // ZEPH_TOOLS_GOLDEN_ROWS_H
