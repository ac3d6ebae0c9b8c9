// A program folder of links to the built one, in which a test may take files away or break them.
#pragma once

#include <filesystem>
#include <string>

namespace girovia {

class Cartella {
 public:
  Cartella();
  ~Cartella();
  Cartella(const Cartella&) = delete;
  Cartella& operator=(const Cartella&) = delete;

  std::string percorso() const { return radice_.string(); }
  // `file` is relative to the folder; a folder is taken away with all that lies in it.
  void Togli(const std::string& file);
  void Riscrivi(const std::string& file, const std::string& contenuto);
  void Tubo(const std::string& file);  // a pipe that nobody writes to

  // Small pictures in the place of the photographs, the trials' maps, the dice and the turning
  // card, which take most of the time of a game that has no clock to wait for.
  void Alleggerisci(std::string_view tranne = {});

 private:
  std::filesystem::path radice_;
};

}  // namespace girovia
