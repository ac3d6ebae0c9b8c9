// A picture file, read back.
#pragma once

#include <string>

#include "image.h"

// Empty if the file is no picture.
dipingi::Image Leggi(const std::string& path);
