// The place of a pattern in a byte text: the core that the exported searches share.
#ifndef ZEPH_SEARCH_POSITION_H
#define ZEPH_SEARCH_POSITION_H

namespace zeph {

enum class CaseRule { exact, ignored };

// Where the bytes of a match may stand: from `start` up to, and not including, `end` or the
// terminator. A negative `start` is 0.
struct SearchSpan {
  int start, end;
};

constexpr int not_found = -1;

// The index of the first match, counted from the start of `text`. Case is ignored as the process's
// locale folds it. A match that starts behind the largest `int` is not found.
int find_position(const char* text, const char* pattern, CaseRule rule);
int find_position(const char* text, SearchSpan span, const char* pattern, CaseRule rule);

}  // namespace zeph

#endif  // ZEPH_SEARCH_POSITION_H
