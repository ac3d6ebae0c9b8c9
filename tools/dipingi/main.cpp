// dipingi: draws one SVG into one picture file, or into a sprite's pair of picture and mask.
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "image.h"
#include "parts.h"
#include "perspective.h"

namespace {

constexpr char kUsage[] =
    "usage: dipingi [--scala N] [--parti FOLDER] [--max-kb N] [--sprite] [--maschera MASK.png]\n"
    "               [--carta WIDTH | --dado] [--dipendenze FILE.d]\n"
    "               WIDTHxHEIGHT DRAWING.svg PICTURE.{png,jpg,bmp}\n";

struct Arguments {
  int scale = 2;
  int max_kb = 0;
  int card = 0;      // the width of the card seen flat, if the picture is a turning card
  bool die = false;  // the picture is a tilted die
  bool sprite = false;
  int width = 0, height = 0;
  std::string parts, mask, dependencies, drawing, picture;
};

int WholeNumber(const std::string& text) {
  std::size_t used = 0;
  int value = 0;
  try {
    value = std::stoi(text, &used);
  } catch (const std::exception&) {
  }
  if (used != text.size() || value <= 0 || value > 8192)
    throw dipingi::Error("\"" + text + "\" is not a whole number from 1 to 8192.");
  return value;
}

Arguments Parse(int argc, char** argv) {
  Arguments arguments;
  std::string plain[3];
  int count = 0;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const auto value = [&]() -> std::string {
      if (i + 1 >= argc) throw dipingi::Error(word + " needs a value.");
      return argv[++i];
    };
    if (word == "--scala") {
      arguments.scale = WholeNumber(value());
    } else if (word == "--max-kb") {
      arguments.max_kb = WholeNumber(value());
    } else if (word == "--carta") {
      arguments.card = WholeNumber(value());
    } else if (word == "--dado") {
      arguments.die = true;
    } else if (word == "--parti") {
      arguments.parts = value();
    } else if (word == "--sprite") {
      arguments.sprite = true;
    } else if (word == "--maschera") {
      arguments.sprite = true;
      arguments.mask = value();
    } else if (word == "--dipendenze") {
      arguments.dependencies = value();
    } else if (word.starts_with("--")) {
      throw dipingi::Error("The option " + word + " is not known.");
    } else if (count < 3) {
      plain[count++] = word;
    } else {
      throw dipingi::Error("There is one word too many: " + word + ".");
    }
  }
  if (count < 3) throw dipingi::Error("A size, a drawing and a picture file are needed.");
  const std::size_t times = plain[0].find('x');
  if (times == std::string::npos)
    throw dipingi::Error("The size must be written as WIDTHxHEIGHT, not " + plain[0] + ".");
  arguments.width = WholeNumber(plain[0].substr(0, times));
  arguments.height = WholeNumber(plain[0].substr(times + 1));
  if (arguments.width * arguments.scale > 8192 || arguments.height * arguments.scale > 8192)
    throw dipingi::Error("The picture would be more than 8192 pixels wide or high.");
  arguments.drawing = plain[1];
  arguments.picture = plain[2];
  return arguments;
}

dipingi::Image Draw(const Arguments& arguments, const std::string& svg) {
  const int width = arguments.width * arguments.scale, height = arguments.height * arguments.scale;
  if (arguments.card > 0)
    return dipingi::TurnCard(
        dipingi::Render(svg, arguments.drawing, arguments.card * arguments.scale, height), width);
  if (arguments.die)
    return dipingi::TiltDie(dipingi::Render(svg, arguments.drawing, 2 * height, height), width,
                            height);
  return dipingi::Render(svg, arguments.drawing, width, height);
}

void Run(const Arguments& arguments) {
  dipingi::Parts parts(arguments.parts);
  const std::string svg = parts.Expand(dipingi::ReadText(arguments.drawing), arguments.drawing);
  dipingi::Image image = Draw(arguments, svg);
  if (arguments.sprite) {
    const dipingi::Image mask = dipingi::CutSprite(image);
    if (!arguments.mask.empty()) dipingi::Write(mask, arguments.mask, arguments.max_kb);
  }
  dipingi::Write(image, arguments.picture, arguments.max_kb);
  if (!arguments.dependencies.empty()) {
    std::ofstream out(arguments.dependencies);
    out << arguments.picture << ": " << arguments.drawing;
    for (const std::string& file : parts.used()) out << ' ' << file;
    out << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) {
    std::cerr << kUsage;
    return 1;
  }
  try {
    Run(Parse(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << "dipingi: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
