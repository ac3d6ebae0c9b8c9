// A bare SDL2 program that opens a full-screen window, shows one frame through the window's own
// framebuffer and tells when it stood: the measure for the game's own start.
#include <SDL.h>

#include <chrono>
#include <cstdio>

#include "misure.h"

int main(int, char**) {
  const auto start = std::chrono::steady_clock::now();
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (SDL_Init(SDL_INIT_VIDEO) != 0) return 1;
  SDL_Rect place{0, 0, 800, 600};
  SDL_GetDisplayBounds(0, &place);
  SDL_Window* window =
      SDL_CreateWindow("bare", place.x, place.y, place.w, place.h, SDL_WINDOW_FULLSCREEN_DESKTOP);
  SDL_Surface* surface = SDL_GetWindowSurface(window);
  SDL_FillRect(surface, nullptr, 0x00336699);
  SDL_UpdateWindowSurface(window);
  const std::chrono::duration<double, std::milli> ms = std::chrono::steady_clock::now() - start;
  std::printf("first-picture-ms %.1f\n", ms.count());
  SDL_Delay(1000);
  std::printf("pss-megabytes %.1f\n", PssMegabytes());
  SDL_DestroyWindow(window);
  SDL_Quit();
  return 0;
}
