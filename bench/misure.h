// What a process can tell of itself on Linux.
#pragma once

#include <sys/resource.h>

#include <cstdio>
#include <cstring>

// Proportional set size in megabytes; 0 where the system does not tell.
inline double PssMegabytes() {
  std::FILE* file = std::fopen("/proc/self/smaps_rollup", "r");
  if (!file) return 0;
  char line[256];
  long kilobytes = 0;
  while (std::fgets(line, sizeof line, file))
    if (std::sscanf(line, "Pss: %ld kB", &kilobytes) == 1) break;
  std::fclose(file);
  return double(kilobytes) / 1024;
}

struct Consumo {
  double cpuSeconds;
  long wakeUps;  // of all threads: each voluntary switch is one sleep that ended
};

inline Consumo ConsumoFinora() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
  return {seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_nvcsw};
}
