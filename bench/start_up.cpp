// start_up ROUNDS PROGRAM...: starts the programs in turn on the display. For each it prints the
// medians of four figures: the time from its start until its window is mapped, the time until it is
// painted, its processor time and its memory. It also prints the medians of the ratios to the first
// program in each round. A window counts as painted when its lower right quarter is no longer of
// one colour, as it is while a frame loads its screen.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Figures {
  double mappedMs = 0;
  double paintedMs = 0;
  double processorMs = 0;
  double memoryMiB = 0;
};

double MsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Memory that the library of the display allocated.
struct Freed {
  void operator()(void* memory) const { std::free(memory); }  // NOLINT: its owner
};
template <class T>
using Reply = std::unique_ptr<T, Freed>;

/// Whether `row` of the right half of a window shows at least three colours.
bool ShowsColours(xcb_connection_t* display, xcb_window_t window, int width, int row) {
  const auto half = static_cast<std::uint16_t>(width / 2);
  const auto cookie =
      xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<std::int16_t>(half),
                    static_cast<std::int16_t>(row), half, 1, ~0U);
  const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(display, cookie, nullptr));
  if (!image) return false;
  const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
  const std::set<std::uint32_t> colours(pixels, pixels + half);
  return colours.size() >= 3;
}

bool IsPainted(xcb_connection_t* display, xcb_window_t window) {
  const Reply<xcb_get_geometry_reply_t> place(
      xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
  if (!place) return false;
  const int width = place->width;
  const int height = place->height;
  if (width < 100 || height < 100) return false;
  return ShowsColours(display, window, width, height * 3 / 5) &&
         ShowsColours(display, window, width, height * 4 / 5);
}

/// Waits for a painted window. Returns when it was mapped, and when it was first seen painted.
Figures WatchForWindow(xcb_connection_t* display, Clock::time_point start) {
  constexpr double kPatienceMs = 20000;
  std::map<xcb_window_t, double> mapped;
  while (MsSince(start) < kPatienceMs) {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(display)}) {
      if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY) {
        mapped.emplace(reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window,
                       MsSince(start));
      }
    }
    for (const auto& [window, time] : mapped) {
      if (IsPainted(display, window)) return {time, MsSince(start)};
    }
    std::this_thread::sleep_for(std::chrono::microseconds(300));
  }
  std::fprintf(stderr, "No window was painted\n");
  std::exit(1);
}

double MemoryOf(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
  for (std::string word; file >> word;) {
    double kib = 0;
    if (word == "Pss:" && file >> kib) return kib / 1024;
  }
  return 0;
}

pid_t StartProgram(const char* program) {
  const pid_t process = fork();
  if (process != 0) return process;
  execl(program, program, nullptr);
  _exit(127);
}

Figures Measure(xcb_connection_t* display, const char* program) {
  const auto start = Clock::now();
  const pid_t process = StartProgram(program);
  Figures figures = WatchForWindow(display, start);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  figures.memoryMiB = MemoryOf(process);
  kill(process, SIGKILL);
  rusage usage{};
  wait4(process, nullptr, 0, &usage);
  const auto ms = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  figures.processorMs = ms(usage.ru_utime) + ms(usage.ru_stime);
  return figures;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double MedianOf(const std::vector<Figures>& rounds, double Figures::*field) {
  std::vector<double> values;
  values.reserve(rounds.size());
  for (const Figures& round : rounds) values.push_back(round.*field);
  return Median(values);
}

double MedianRatio(const std::vector<Figures>& rounds, const std::vector<Figures>& first,
                   double Figures::*field) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < rounds.size(); ++i) {
    ratios.push_back(rounds[i].*field / (first[i].*field));
  }
  return Median(ratios);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const int rounds = std::atoi(argv[1]);
  const std::vector<const char*> programs(argv + 2, argv + argc);
  xcb_connection_t* display = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(display) != 0) return 1;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
  const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &events);
  xcb_flush(display);

  std::vector<std::vector<Figures>> all(programs.size());
  for (const char* program : programs) Measure(display, program);  // loads the files into memory
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < programs.size(); ++i) {
      all[i].push_back(Measure(display, programs[i]));
    }
  }
  for (std::size_t i = 0; i < programs.size(); ++i) {
    std::printf(
        "%-40s mapped %5.1f ms (%.2f)  painted %5.1f ms (%.2f)  CPU %3.0f ms  PSS %.1f MiB\n",
        programs[i], MedianOf(all[i], &Figures::mappedMs),
        MedianRatio(all[i], all[0], &Figures::mappedMs), MedianOf(all[i], &Figures::paintedMs),
        MedianRatio(all[i], all[0], &Figures::paintedMs), MedianOf(all[i], &Figures::processorMs),
        MedianOf(all[i], &Figures::memoryMiB));
  }
  xcb_disconnect(display);
}
