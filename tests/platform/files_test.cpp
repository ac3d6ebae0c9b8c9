// Every kind of damage to every kind of file that the program reads.
#include <gtest/gtest.h>
#include <stb/stb_image_write.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>

#include "platform/drawing/face.h"
#include "platform/drawing/picture.h"
#include "platform/hosts/wave.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

const std::string kFolder = testing::TempDir() + "girovia_files_" + std::to_string(getpid());
std::string Path(const std::string& name) { return kFolder + "/" + name; }

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Read(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

constexpr int kRefused = -1;

int LoadPicture(const std::string& path) {
  int error = 0;
  Picture::Load(path, error);
  return error;
}
int LoadSound(const std::string& path) { return LoadWave(path) ? 0 : kRefused; }
int LoadFace(const std::string& path) { return Face::Read(path) ? 0 : kRefused; }

struct Kind {
  const char* name;
  int (*load)(const std::string&);
  std::size_t sizeAt;  // where the header says how large it is
  const char* size;    // 20,000 by 20,000 pixels, or as much of the other kinds
  int sizeBytes;
  bool mayBeCut;  // what there is of it is good
};

constexpr Kind kKinds[] = {
    {"a.png", LoadPicture, 16, "\0\0\x4E\x20\0\0\x4E\x20", 8, false},
    {"b.png", LoadPicture, 16, "\0\0\x1F\xFF\0\0\x1F\xFF", 8, false},  // just below a side's limit
    {"a.bmp", LoadPicture, 18, "\x20\x4E\0\0\x20\x4E\0\0", 8, false},
    {"a.jpg", LoadPicture, 0, "\x4E\x20\x4E\x20", 4, false},
    {"b.jpg", LoadPicture, 0, "\x1F\xFF\x1F\xFF", 4, false},
    {"a.wav", LoadSound, 24, "\xFF\xFF\xFF\xFF", 4, true},
    {"a.ttf", LoadFace, 20, "\x7F\xFF\xFF\xFF", 4, false},
};

void MakeFiles() {
  fs::create_directories(kFolder);
  const std::string rgb(40 * 30 * 3, '\x55');
  for (const char* name : {"a.png", "b.png"})
    ASSERT_TRUE(stbi_write_png(Path(name).c_str(), 40, 30, 3, rgb.data(), 0));
  for (const char* name : {"a.jpg", "b.jpg"})
    ASSERT_TRUE(stbi_write_jpg(Path(name).c_str(), 40, 30, 3, rgb.data(), 80));
  ASSERT_TRUE(stbi_write_bmp(Path("a.bmp").c_str(), 40, 30, 3, rgb.data()));
  const std::string header(
      "RIFF\xFF\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\x88\x58\1\0\2\0\x10\0data\0\4\0\0", 44);
  Write(Path("a.wav"), header + std::string(1024, 'x'));
  fs::copy_file(FONT_FOLDER "/DejaVuSans.ttf", Path("a.ttf"));
}

TEST(Files, NoDamageHoldsTheProgramUpOrGetsThrough) {
  MakeFiles();
  const std::string damaged = Path("damaged");
  for (const Kind& kind : kKinds) {
    const std::string whole = Read(Path(kind.name));
    ASSERT_EQ(kind.load(Path(kind.name)), 0) << kind.name;
    std::string boasting = whole;
    const std::size_t at = kind.sizeAt ? kind.sizeAt : whole.find("\xFF\xC0") + 5;
    boasting.replace(at, kind.sizeBytes, kind.size, kind.sizeBytes);
    std::mt19937 draw(1);
    std::string noise(5000, '\0');
    for (char& c : noise) c = static_cast<char>(draw());
    const struct {
      const char* name;
      int error;  // of a picture
      std::function<void()> make;
    } damages[] = {
        {"missing", ENOENT, [] {}},
        {"empty", EILSEQ, [&] { Write(damaged, ""); }},
        {"cut", EILSEQ, [&] { Write(damaged, whole.substr(0, whole.size() / 2)); }},
        {"random", EILSEQ, [&] { Write(damaged, noise); }},
        {"begun well", EILSEQ, [&] { Write(damaged, whole.substr(0, 18) + noise); }},
        {"boasting", EILSEQ, [&] { Write(damaged, boasting); }},
        {"another kind", EILSEQ, [&] { Write(damaged, "GIF89a" + std::string(900, '\1')); }},
        {"endless", EFBIG, [&] { Write(damaged, "x"), fs::resize_file(damaged, 1ull << 40); }},
        {"a folder", EISDIR, [&] { fs::create_directory(damaged); }},
        {"unreadable", EACCES,
         [&] { Write(damaged, whole), fs::permissions(damaged, fs::perms::none); }},
        {"a pipe", EILSEQ, [&] { mkfifo(damaged.c_str(), 0600); }},
        {"a device", EILSEQ, [&] { fs::create_symlink("/dev/zero", damaged); }},
        {"a link to itself", ELOOP, [&] { fs::create_symlink(damaged, damaged); }},
        {"within a file", ENOTDIR, [&] { fs::create_symlink(Path("a.png/x"), damaged); }},
    };
    for (const auto& damage : damages) {
      SCOPED_TRACE(std::string(kind.name) + ", " + damage.name);
      fs::remove_all(damaged);
      damage.make();
      if (damage.error == EACCES && access(damaged.c_str(), R_OK) == 0) continue;  // root
      const auto start = std::chrono::steady_clock::now();
      const int error = kind.load(damaged);
      EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
      if (kind.mayBeCut && std::string(damage.name) == "cut") continue;
      EXPECT_EQ(error, kind.load == LoadPicture ? damage.error : kRefused);
    }
  }
  fs::remove_all(kFolder);
}

}  // namespace
}  // namespace platform
