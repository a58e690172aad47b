#include "skins/qt/XServer.h"

#include <sys/prctl.h>

#include <QStringList>
#include <csignal>
#include <stdexcept>

namespace qt_test {

namespace {

/// In milliseconds. Far more than anything started here needs, even on a busy machine.
constexpr int kPatience = 60'000;
constexpr unsigned kKeyCodeOffset = 8;

}  // namespace

XServer::XServer() {
  server_.setProgram(QStringLiteral("Xvfb"));
  server_.setArguments({"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
  // The server must not outlive the test, however that ends.
  server_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  server_.start();
  QByteArray display;
  while (!display.endsWith('\n')) {
    if (!server_.waitForReadyRead(kPatience)) {
      throw std::runtime_error("Xvfb does not come up: " +
                               server_.readAllStandardError().toStdString());
    }
    display += server_.readAllStandardOutput();
  }
  qputenv("DISPLAY", ":" + display.trimmed());
}

XServer::~XServer() {
  server_.terminate();
  if (!server_.waitForFinished(kPatience)) {
    server_.kill();
    server_.waitForFinished(kPatience);
  }
}

void XServer::setLayout(const std::string& layout) const {
  run("setxkbmap", {"-model", "pc105", "-layout", QString::fromStdString(layout)});
}

void XServer::pressKey(unsigned evdev) const {
  run("xdotool", {"key", QString::number(evdev + kKeyCodeOffset)});
}

void XServer::focus(unsigned long window) const {
  run("xdotool", {"windowfocus", QString::number(window)});
}

void XServer::run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(kPatience) || process.exitStatus() != QProcess::NormalExit ||
      process.exitCode() != 0) {
    throw std::runtime_error(program.toStdString() + " " + arguments.join(' ').toStdString() +
                             ": " + process.errorString().toStdString() + " " +
                             process.readAllStandardError().toStdString());
  }
}

}  // namespace qt_test
