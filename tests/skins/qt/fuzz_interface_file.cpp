// Feeds arbitrary interface files to the loader, which must return a view or throw
// `InterfaceError`. Most mutations change whole lines, so that much of the file stays well formed.

#include <QApplication>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "skins/qt/Host.h"
#include "skins/qt/QtInterfaceLoader.h"
#include "ui/Log.h"
#include "view/factory/InterfaceObjects.h"

namespace {

QApplication& application() {
  static int count = 1;
  static char name[] = "fuzzer";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static QApplication application(count, arguments);
  return application;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// Deletes, repeats or swaps lines, or changes a number.
void changeLines(std::vector<std::string>& lines, std::minstd_rand& random) {
  const auto any = [&] { return random() % lines.size(); };
  const std::size_t line = any();
  switch (random() % 4) {
    case 0:
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line));
      break;
    case 1:
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(any()), std::string(lines[line]));
      break;
    case 2:
      std::swap(lines[line], lines[any()]);
      break;
    default:
      if (const std::size_t digit = lines[line].find_first_of("0123456789");
          digit != std::string::npos) {
        lines[line].replace(digit, 1, std::to_string(static_cast<int>(random() % 4000) - 2000));
      }
  }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
  std::minstd_rand random(seed);
  std::vector<std::string> lines = linesOf(std::string(reinterpret_cast<const char*>(data), size));
  if (lines.size() < 2 || random() % 8 == 0) {
    return LLVMFuzzerMutate(data, size, most);
  }
  changeLines(lines, random);
  std::string text;
  for (const std::string& line : lines) {
    text += line + "\n";
  }
  text.resize(std::min(text.size(), most));
  std::copy(text.begin(), text.end(), data);
  return text.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  application();
  static const qt_test::ResourceFolder resources;
  std::ofstream(resources.interfaceFile(), std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  const ui::LogSink earlier = ui::setLogSink([](std::string_view) {});
  ui::qt::QtInterfaceLoader loader(qt_test::testEnvironment(resources.path()));
  try {
    loader.loadNibNamed("Velk_NordaAACConverter", velk::makeInterfaceObjects);
  } catch (const ui::InterfaceError&) {
    // Expected for a broken file.
  }
  ui::setLogSink(earlier);
  return 0;
}
