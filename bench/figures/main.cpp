#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>

#include "Figure.h"

// Measures the project's performance figures in one run and compares each with its goal.

namespace {

void print(const figures::Row& row, bool asJson) {
  if (asJson) {
    const nlohmann::ordered_json line = {{"name", row.name},
                                         {"value", row.value},
                                         {"unit", row.unit},
                                         {"goal", row.goal},
                                         {"holds", row.holds}};
    std::puts(line.dump().c_str());
  } else {
    std::printf("%-32s %12.4f  %-10s %-4s %s\n", row.name.c_str(), row.value, row.goal.c_str(),
                row.holds ? "yes" : "NO", row.unit.c_str());
  }
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Measures the project's figures and says whether they hold.");
  bool asJson = false;
  bool lists = false;
  std::string only;
  app.add_flag("--json", asJson, "one JSON object for each figure");
  app.add_flag("--list", lists, "only name the figures");
  app.add_option("--only", only, "measure the figure of this name");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_SUCCESS : 2;
  }

  bool isKnown = false;
  for (const figures::Family& family : figures::families()) {
    const bool isWanted = only.empty() || std::ranges::count(family.rows, only) > 0;
    isKnown = isKnown || isWanted;
    if (lists) {
      for (const std::string& name : family.rows) std::puts(name.c_str());
    } else if (isWanted) {
      for (const figures::Row& row : family.measure()) {
        if (only.empty() || row.name == only) print(row, asJson);
      }
    }
  }
  if (isKnown) return EXIT_SUCCESS;
  std::fprintf(stderr, "figures: there is no figure '%s'; --list names them\n", only.c_str());
  return 2;
}
