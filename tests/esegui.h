// A tool of the project, run as its user runs it.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <string>

struct Uscita {
  int codice;
  std::string testo;
};

inline Uscita Esegui(const std::string& comando) {
  FILE* tubo = popen(comando.c_str(), "r");
  std::string testo;
  for (int c; (c = std::fgetc(tubo)) != EOF;) testo += static_cast<char>(c);
  return {WEXITSTATUS(pclose(tubo)), testo};
}
