#include "dimostrazione/mano.h"

#include <algorithm>
#include <cmath>

#include "platform/drawing/clusters.h"
#include "platform/drawing/picture.h"

namespace girovia {

using platform::DeviceRect;
using platform::Event;
using platform::EventKind;
using platform::Point;
using platform::Surface;

namespace {

constexpr std::int64_t kFotogramma = 1'000'000 / 60;
constexpr std::int64_t kPrimaDiPremere = 180'000;
constexpr std::int64_t kPremuta = 120'000;
constexpr std::int64_t kTasto = 140'000;
constexpr std::int64_t kFraDueGesti = 350'000;
constexpr double kTremito = 24;  // window pixels: a table that was knocked against is no touch
constexpr double kLatoPuntatore = 32;

platform::Pointer Invisibile() {
  return {.kind = platform::Pointer::Kind::Custom,
          .picture = platform::Picture::FromPixels(1, 1, {0})};
}

void DisegnaFreccia(Surface& su, Point punta) {
  std::vector<Point> freccia = {{0, 0},       {0, 20}, {4.5, 15.5}, {8, 23},
                                {11.5, 21.5}, {8, 14}, {14, 14}};
  for (Point& p : freccia) p = {punta.x + p.x, punta.y + p.y};
  su.Polyline(freccia, true, {3, 0x4A3022});
  su.FillPolygon(freccia, platform::colors::kWhite);
}

}  // namespace

Mano::Mano(platform::Host& host, bool visibile) : ForwardingHost(host), visibile_(visibile) {
  const platform::PixelSize finestra = host_.WindowSize();
  qui_ = {finestra.width / 2.0, finestra.height / 2.0};
  if (visibile_) host_.SetPointer(Invisibile(), 1);
  host_.TakeText(DeviceRect{0, 0, 1, 1});  // or else letters would not be told
}

Mano::~Mano() {
  host_.TakeText(std::nullopt);
  host_.SetPointer({}, 1);
}

// --- Input

bool Mano::WaitEvent(Event& event, std::int64_t deadline) {
  for (;;) {
    if (Esegui(event)) return true;
    std::int64_t fino = deadline;
    if (!mosse_.empty()) {
      fino = std::min(fino, mosse_.front().quando);
    } else if (attore_) {
      const std::int64_t quando = std::max(libera_, attore_->GuardaFinoA());
      if (quando > NowMicros()) {
        fino = std::min(fino, quando);
      } else if (const auto gesto = attore_->Prossimo()) {
        Progetta(*gesto);
        continue;
      }
    }
    if (host_.WaitEvent(event, fino)) {
      if (Lascia(event)) return true;
    } else if (NowMicros() >= deadline) {
      return false;
    }
  }
}

bool Mano::PollEvent(Event& event) {
  if (Esegui(event)) return true;
  while (host_.PollEvent(event))
    if (Lascia(event)) return true;
  return false;
}

bool Mano::WaitBlocked(Event& event, std::int64_t deadline) {
  while (NowMicros() < deadline)
    if (host_.WaitBlocked(event, deadline) && Lascia(event)) return true;
  return false;
}

bool Mano::Lascia(Event& event) {
  switch (event.kind) {
    case EventKind::Quit:
      chiusa_ = true;
      return true;
    case EventKind::Expose:
    case EventKind::Resize:
      return true;
    default:
      if (!Tocco(event)) return false;
      toccata_ = true;
      event = {.kind = EventKind::Quit};
      return true;
  }
}

bool Mano::Tocco(const Event& event) {
  switch (event.kind) {
    case EventKind::MouseUp:
    case EventKind::MouseLeave:
      return false;
    case EventKind::MouseMove:
      if (!mouse_) mouse_ = Point{double(event.x), double(event.y)};
      return std::hypot(event.x - mouse_->x, event.y - mouse_->y) > kTremito;
    default:
      return true;
  }
}

// --- The hand

bool Mano::Esegui(Event& event) {
  if (!mosse_.empty() && attore_->Scena() != scena_) {
    mosse_.clear();
    if (premuta_)
      mosse_.push_back(
          {NowMicros(), {.kind = EventKind::MouseUp, .x = int(qui_.x), .y = int(qui_.y)}});
  }
  if (mosse_.empty() || mosse_.front().quando > NowMicros()) return false;
  event = std::move(mosse_.front().event);
  mosse_.pop_front();
  if (event.kind == EventKind::MouseMove) Muovi({double(event.x), double(event.y)});
  if (event.kind == EventKind::MouseDown) premuta_ = true;
  if (event.kind == EventKind::MouseUp) premuta_ = false;
  libera_ = NowMicros() + kFraDueGesti;
  return true;
}

// The pointer glides, slowly at both ends, rests a little, presses and lets go.
void Mano::Progetta(const Gesto& gesto) {
  scena_ = attore_->Scena();
  std::int64_t quando = NowMicros();
  const auto aggiungi = [&](std::int64_t dopo, Event event) {
    event.x = int(gesto.dove.x);
    event.y = int(gesto.dove.y);
    mosse_.push_back({quando += dopo, std::move(event)});
  };
  const double strada = std::hypot(gesto.dove.x - qui_.x, gesto.dove.y - qui_.y);
  const double parte = strada / host_.WindowSize().width;
  const int passi = 12 + int(60 * parte);
  for (int i = 1; i < passi; ++i) {
    const double t = double(i) / passi, s = t * t * (3 - 2 * t);
    mosse_.push_back({quando += kFotogramma,
                      {.kind = EventKind::MouseMove,
                       .x = int(qui_.x + (gesto.dove.x - qui_.x) * s),
                       .y = int(qui_.y + (gesto.dove.y - qui_.y) * s)}});
  }
  aggiungi(kFotogramma, {.kind = EventKind::MouseMove});
  aggiungi(kPrimaDiPremere, {.kind = EventKind::MouseDown});
  aggiungi(kPremuta, {.kind = EventKind::MouseUp});
  for (std::size_t da = 0, a; da < gesto.testo.size(); da = a) {
    a = platform::NextCluster(gesto.testo, da);
    aggiungi(kTasto, {.kind = EventKind::Text, .text = gesto.testo.substr(da, a - da)});
  }
}

// --- What is seen of it

void Mano::Show(const Surface& plane, const std::vector<DeviceRect>& changed) {
  if (!visibile_) return host_.Show(plane, changed);
  std::vector<DeviceRect> mutato = changed;
  if (veduta_.deviceBounds() != plane.deviceBounds() || veduta_.scale() != plane.scale()) {
    veduta_ = plane;
    coperto_ = {};
  } else {
    Cancella();
    for (const DeviceRect& r : changed)
      for (int y = r.top; y < r.bottom; ++y)
        std::copy_n(plane.row(y) + r.left, r.width(), veduta_.row(y) + r.left);
  }
  Disegna();
  mutato.push_back(coperto_);
  host_.Show(veduta_, mutato);
}

void Mano::SetPointer(const platform::Pointer& pointer, double) {
  forma_ = pointer;
  Muovi(qui_);
}

void Mano::Muovi(Point dove) {
  const DeviceRect prima = coperto_;
  qui_ = dove;
  if (!visibile_ || veduta_.width() == 0) return;
  Cancella();
  Disegna();
  host_.Show(veduta_, {prima, coperto_});
}

DeviceRect Mano::PostoMano() const {
  const double quanto = double(veduta_.deviceWidth()) / host_.WindowSize().width;
  const int k = veduta_.scale();
  const int x = int(qui_.x * quanto), y = int(qui_.y * quanto);
  const bool sua = forma_.kind == platform::Pointer::Kind::Custom;
  const int left = x - (sua ? forma_.hotX * k : 2 * k), top = y - (sua ? forma_.hotY * k : 2 * k);
  const int lato = int(kLatoPuntatore) * k;
  return {left, top, left + lato, top + lato};
}

void Mano::Cancella() {
  for (int y = coperto_.top; y < coperto_.bottom; ++y)
    std::copy_n(sotto_.row(y - coperto_.top), coperto_.width(), veduta_.row(y) + coperto_.left);
  coperto_ = {};
}

void Mano::Disegna() {
  const DeviceRect posto = PostoMano();
  coperto_ = Intersect(posto, veduta_.deviceBounds());
  if (coperto_.empty()) return;
  const int k = veduta_.scale();
  if (sotto_.scale() != k || sotto_.width() == 0)
    sotto_ = Surface(int(kLatoPuntatore), int(kLatoPuntatore), k);
  for (int y = coperto_.top; y < coperto_.bottom; ++y)
    std::copy_n(veduta_.row(y) + coperto_.left, coperto_.width(), sotto_.row(y - coperto_.top));
  const Point angolo{posto.left / double(k), posto.top / double(k)};
  veduta_.SetClip(coperto_);
  if (forma_.kind == platform::Pointer::Kind::Custom)
    forma_.picture->Draw(veduta_, {angolo.x, angolo.y, kLatoPuntatore, kLatoPuntatore});
  else
    DisegnaFreccia(veduta_, {angolo.x + 2, angolo.y + 2});
  veduta_.SetClip(veduta_.deviceBounds());
}

}  // namespace girovia
