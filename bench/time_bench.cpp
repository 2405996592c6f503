// Stamps against localtime_r with strftime, and against the clock reading and localtime_r alone,
// which no stamp can do without; durations against snprintf.
#include <time.h>

#include <cstdint>
#include <cstdio>

#if ZEPH_BENCH_HAS_FMT
#include <fmt/chrono.h>
#include <fmt/format.h>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

constexpr const char* other_instant = "it reads the clock at another time";

void read_clock(timespec& now, tm& fields) {
  clock_gettime(CLOCK_REALTIME, &now);
  localtime_r(&now.tv_sec, &fields);
}

int reading() {
  timespec now;
  tm fields;
  read_clock(now, fields);
  return fields.tm_sec + static_cast<int>(now.tv_nsec / 1000000);
}

std::size_t by_strftime(char (&out)[64], const char* format, bool milliseconds) {
  timespec now;
  tm fields;
  read_clock(now, fields);
  std::size_t length = strftime(out, sizeof out, format, &fields);
  if (milliseconds) {
    length += static_cast<std::size_t>(std::snprintf(out + length, sizeof out - length, ".%03d",
                                                     static_cast<int>(now.tv_nsec / 1000000)));
  }
  return length;
}

void add_stamp_row(const char* name, const char* (*stamp)(), const char* format,
                   bool milliseconds) {
  struct Room {
    char text[64];
  };
  Room& room = keep(Room{});
  auto& stamps = row("time", name, "now", 1);
  stamps.zeph([stamp] { return stamp(); })
      .peer(
          milliseconds ? "localtime_r, strftime, snprintf" : "localtime_r, strftime",
          [&room, format, milliseconds] { return by_strftime(room.text, format, milliseconds); },
          other_instant)
      .limit("clock_gettime, localtime_r", [] { return reading(); });
#if ZEPH_BENCH_HAS_FMT
  if (milliseconds) return;
  const std::string fmt_format = std::string("{:") + format + "}";
  stamps.peer(
      "fmt::format_to",
      [&room, fmt_format] {
        timespec now;
        tm fields;
        read_clock(now, fields);
        *fmt::format_to(room.text, fmt::runtime(fmt_format), fields) = '\0';
        return room.text[0] != '\0';
      },
      other_instant);
#endif
}

struct Duration {
  double seconds;
  char text[64];
};

const char* by_snprintf(Duration& d, bool milliseconds) {
  const int whole = static_cast<int>(d.seconds);
  const int hours = whole / 3600, minutes = whole % 3600 / 60, rest = whole % 60;
  const int fraction = static_cast<int>(static_cast<std::int64_t>(d.seconds * 1000.0) % 1000);
  if (hours >= 24 && milliseconds) {
    std::snprintf(d.text, 31, "%d %02d:%02d:%02d.%03d", hours / 24, hours % 24, minutes, rest,
                  fraction);
  } else if (hours >= 24) {
    std::snprintf(d.text, 31, "%d %02d:%02d:%02d", hours / 24, hours % 24, minutes, rest);
  } else if (milliseconds) {
    std::snprintf(d.text, 31, "%02d:%02d:%02d.%03d", hours, minutes, rest, fraction);
  } else {
    std::snprintf(d.text, 31, "%02d:%02d:%02d", hours, minutes, rest);
  }
  return d.text;
}

void add_duration_rows(const char* input, double seconds) {
  Duration& d = keep(Duration{seconds, ""});
  row("time", "Zeph_Seconds_To_Time", input, 8)
      .zeph([&d] { return Orbane::Zeph_Seconds_To_Time(d.seconds); })
      .peer("snprintf", [&d] { return by_snprintf(d, false); });
  auto& fine = row("time", "Zeph_Seconds_To_Time2", input, 12);
  fine.zeph([&d] { return Orbane::Zeph_Seconds_To_Time2(d.seconds); }).peer("snprintf", [&d] {
    return by_snprintf(d, true);
  });
#if ZEPH_BENCH_HAS_FMT
  if (seconds < 0 || seconds >= 86400) return;  // the peers' formats are for a day's time
  fine.peer("fmt::format_to", [&d] {
    const auto whole = static_cast<int>(d.seconds);
    const auto fraction = static_cast<int>(static_cast<std::int64_t>(d.seconds * 1000.0) % 1000);
    *fmt::format_to(d.text, "{:02}:{:02}:{:02}.{:03}", whole / 3600, whole / 60 % 60, whole % 60,
                    fraction) = '\0';
    return static_cast<const char*>(d.text);
  });
#else
  fine.missing_peer("fmt");
#endif
}

}  // namespace

void register_time_rows() {
  add_stamp_row("Zeph_Get_Date", Orbane::Zeph_Get_Date, "%Y/%m/%d", false);
  add_stamp_row("Zeph_Get_Time", Orbane::Zeph_Get_Time, "%H:%M:%S", false);
  add_stamp_row("Zeph_Get_Time2", Orbane::Zeph_Get_Time2, "%H:%M:%S", true);
  add_stamp_row("Zeph_Get_DateTime", Orbane::Zeph_Get_DateTime, "%Y/%m/%d %H:%M:%S", false);
  add_stamp_row("Zeph_Get_DateTime2", Orbane::Zeph_Get_DateTime2, "%Y/%m/%d %H:%M:%S", true);
  add_duration_rows("3661.5 s", 3661.5);
  add_duration_rows("90061.25 s", 90061.25);
  add_duration_rows("-3661.5 s", -3661.5);
}

}  // namespace zeph_bench
