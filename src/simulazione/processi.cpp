#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <vector>

#include "simulazione/partita.h"

namespace girovia::simulazione {
namespace {

struct Figlio {
  pid_t pid;
  int da;  // where it writes what it has counted
};

bool ScriviTutto(int dove, const Conti& conti) {
  const char* byte = reinterpret_cast<const char*>(&conti);
  std::size_t restano = sizeof conti;
  while (restano > 0) {
    const ssize_t scritti = write(dove, byte, restano);
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti <= 0) return false;
    byte += scritti;
    restano -= static_cast<std::size_t>(scritti);
  }
  return true;
}

bool LeggiTutto(int da, Conti& conti) {
  char* byte = reinterpret_cast<char*>(&conti);
  std::size_t restano = sizeof conti;
  while (restano > 0) {
    const ssize_t letti = read(da, byte, restano);
    if (letti < 0 && errno == EINTR) continue;
    if (letti <= 0) return false;
    byte += letti;
    restano -= static_cast<std::size_t>(letti);
  }
  return true;
}

Figlio Avvia(const Argomenti& argomenti, int numero) {
  int tubo[2];
  if (pipe(tubo) != 0) throw std::runtime_error("non si possono avviare altri processi");
  const pid_t pid = fork();
  if (pid == 0) {
    close(tubo[0]);
    const bool scritto = ScriviTutto(tubo[1], Gioca(argomenti, numero, argomenti.processi));
    _exit(scritto ? 0 : 1);
  }
  close(tubo[1]);
  if (pid > 0) return {pid, tubo[0]};
  close(tubo[0]);
  throw std::runtime_error("non si possono avviare altri processi");
}

bool Raccogli(const Figlio& figlio, Conti& conti) {
  const bool letto = LeggiTutto(figlio.da, conti);
  close(figlio.da);
  int esito = 0;
  while (waitpid(figlio.pid, &esito, 0) < 0 && errno == EINTR) {
  }
  return letto && WIFEXITED(esito) && WEXITSTATUS(esito) == 0;
}

}  // namespace

Conti GiocaInsieme(const Argomenti& argomenti) {
  if (argomenti.processi == 1) return Gioca(argomenti, 0, 1);
  std::vector<Figlio> figli;
  Conti somma;
  bool tutti = true;
  try {
    for (int i = 0; i < argomenti.processi; ++i) figli.push_back(Avvia(argomenti, i));
  } catch (const std::runtime_error&) {
    tutti = false;
  }
  for (const Figlio& figlio : figli) {
    Conti conti;
    if (Raccogli(figlio, conti)) {
      somma.Somma(conti);
    } else {
      tutti = false;
    }
  }
  if (!tutti) throw std::runtime_error("uno dei processi non ha finito le sue partite");
  return somma;
}

}  // namespace girovia::simulazione
