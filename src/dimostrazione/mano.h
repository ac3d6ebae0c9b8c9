// A host over another one, with a hand of its own that moves the pointer, clicks and types where an
// actor wants it, at a pace that can be followed. It lets go as soon as somebody touches the real
// mouse or a key.
#pragma once

#include <deque>

#include "platform/hosts/forwarding_host.h"

namespace girovia {

// A click, and what is typed behind it.
struct Gesto {
  platform::Point dove;  // window pixels
  std::string testo = {};
};

class Attore {
 public:
  virtual ~Attore() = default;
  // Another number for each form that has come to the front: what was begun on another one is left.
  virtual int Scena() = 0;
  // Up to when he only looks at it.
  virtual std::int64_t GuardaFinoA() = 0;
  // What he does next, if anything.
  virtual std::optional<Gesto> Prossimo() = 0;
};

class Mano : public platform::ForwardingHost {
 public:
  // A visible hand is drawn over the picture in the place of the real pointer.
  Mano(platform::Host& host, bool visibile);
  ~Mano() override;

  void Guida(Attore& attore) { attore_ = &attore; }
  bool toccata() const { return toccata_; }  // by a person
  bool chiusa() const { return chiusa_; }    // the window was

  bool WaitEvent(platform::Event& event, std::int64_t deadline) override;
  bool PollEvent(platform::Event& event) override;
  bool WaitBlocked(platform::Event& event, std::int64_t deadline) override;
  void Show(const platform::Surface& plane,
            const std::vector<platform::DeviceRect>& changed) override;
  void SetPointer(const platform::Pointer& pointer, double) override;
  void ClipPointer(const std::optional<platform::DeviceRect>&) override {}
  void TakeText(const std::optional<platform::DeviceRect>&) override {}
  std::string Clipboard() override { return {}; }
  void SetClipboard(const std::string&) override {}

 private:
  struct Mossa {
    std::int64_t quando;
    platform::Event event;
  };

  void Progetta(const Gesto& gesto);
  bool Esegui(platform::Event& event);  // the next move that is due
  bool Lascia(platform::Event& event);  // an event of the real host: false keeps it back
  bool Tocco(const platform::Event& event);
  void Muovi(platform::Point dove);
  void Cancella();
  void Disegna();
  platform::DeviceRect PostoMano() const;

  Attore* attore_ = nullptr;
  bool visibile_, toccata_ = false, chiusa_ = false, premuta_ = false;
  std::optional<platform::Point> mouse_;  // where the real one was first seen
  platform::Point qui_;
  std::deque<Mossa> mosse_;
  int scena_ = 0;
  std::int64_t libera_ = 0;
  platform::Pointer forma_;
  platform::Surface veduta_, sotto_;  // the picture with the hand, and what lies under the hand
  platform::DeviceRect coperto_;
};

}  // namespace girovia
