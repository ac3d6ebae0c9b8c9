#include "stili.h"

namespace mappa {

MapStyle atlasStyle() {
  MapStyle style;
  style.sea = {{rgb(0xb4d0d8), 3.5},
               {rgb(0xa6c6d2), 9},
               {rgb(0x9abdcd), 19},
               {rgb(0x90b5c7), 36},
               {rgb(0x88aec2), 1e9}};
  style.land = {{0, rgb(0xcdcba6)},    {140, rgb(0xd3cfa8)},  {300, rgb(0xd6cda2)},
                {600, rgb(0xd5c497)},  {1000, rgb(0xcab387)}, {1600, rgb(0xb89a72)},
                {2300, rgb(0xa8876b)}, {2700, rgb(0xc4b5a6)}, {3100, rgb(0xf5f2ec)}};
  style.tints = {rgb(0xc6bda6), rgb(0xd88b88), rgb(0xe2c763),
                 rgb(0x86ad6a), rgb(0xdd994d), rgb(0xb08ab4)};
  style.tintStrength = 0.34;
  style.ribbon = 0.15;
  style.coast = rgb(0x3d6076);
  style.border = rgb(0x7d4a4e);
  style.water = rgb(0x4f88a6);
  style.graticule = rgb(0xeef6f6);
  return style;
}

MapStyle politicalStyle() {
  MapStyle style = atlasStyle();
  style.sea = {{rgb(0xb5dcec), 2},
               {rgb(0x9dcfe5), 5},
               {rgb(0x86c0dc), 11},
               {rgb(0x72b1d2), 21},
               {rgb(0x63a4c9), 1e9}};
  style.tints = {rgb(0xd9cdb0), rgb(0xea7f7a), rgb(0xf6d24e),
                 rgb(0x7cc466), rgb(0xf49b45), rgb(0xb27fcb)};
  style.tintStrength = 0.72;
  style.ribbon = 0.25;
  style.neutralStrength = 0.85;
  style.reliefStrength = 0.75;
  style.coast = rgb(0x1f4f75);
  style.border = rgb(0x5c2a3c);
  style.water = rgb(0x2f7fb5);
  style.graticuleAlpha = 0.35;
  style.smallestRiver = 1;
  return style;
}

MapStyle landscapeStyle() {
  MapStyle style = politicalStyle();
  style.sea = {{rgb(0xa9dcec), 5},
               {rgb(0x8accE4), 13},
               {rgb(0x6fb9d9), 27},
               {rgb(0x58a4cb), 52},
               {rgb(0x4a93bd), 1e9}};
  style.land = {{0, rgb(0xcfe0a2)},    {140, rgb(0xd6e2a4)},  {300, rgb(0xe0e0a2)},
                {600, rgb(0xe3d08c)},  {1000, rgb(0xd4ae71)}, {1600, rgb(0xb98d62)},
                {2300, rgb(0xa07a62)}, {2700, rgb(0xc8bcb0)}, {3100, rgb(0xfaf8f4)}};
  // On green ground the violet of the other maps would turn to mud.
  style.tints = {rgb(0xe0d3b4), rgb(0xf6938a), rgb(0xfbdd5c),
                 rgb(0x83d06a), rgb(0xfbab55), rgb(0xe888ea)};
  style.tintStrength = 0.46;
  style.tintFade = 0.65;
  style.ribbon = 0.3;
  style.neutralStrength = 0.55;
  style.reliefStrength = 1;
  style.lineWidth = 1.7;
  style.smallestRiver = 3;
  style.graticuleStep = 1;
  return style;
}

MapStyle stampStyle() {
  MapStyle style = politicalStyle();
  style.sea = {{rgb(0x9fd3ea), 1.5}, {rgb(0x72b1d2), 1e9}};
  style.reliefStrength = 0.3;
  style.ribbon = 0;
  style.lineWidth = 0.45;
  style.smallestRiver = 0;
  style.graticuleAlpha = 0;
  return style;
}

}  // namespace mappa
