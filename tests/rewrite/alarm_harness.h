// Alarm texts joined by the member that takes as many.
#ifndef ZEPH_TESTS_REWRITE_ALARM_HARNESS_H
#define ZEPH_TESTS_REWRITE_ALARM_HARNESS_H

#include <string>
#include <vector>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

// The first text in a buffer of `room` bytes, which holds the result.
inline std::string join_alarms(const std::vector<std::string>& texts, std::size_t room) {
  const GuardedBuffer first(room);
  first.data()[texts[0].copy(first.data(), texts[0].size())] = '\0';
  std::vector<const char*> more;
  for (std::size_t i = 1; i < texts.size(); ++i) more.push_back(texts[i].c_str());
  const auto call = [&](auto... indexes) {
    Orbane::Zeph_Strcat_Alarm_Append_Text(first.data(), more[std::size_t(indexes)]...);
  };
  switch (more.size()) {
    case 1:
      call(0);
      break;
    case 2:
      call(0, 1);
      break;
    case 3:
      call(0, 1, 2);
      break;
    case 4:
      call(0, 1, 2, 3);
      break;
    default:
      call(0, 1, 2, 3, 4);
  }
  return first.data();
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_REWRITE_ALARM_HARNESS_H
