#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "host/executable.h"

namespace {

using namespace monitra::ctl;

/// Accepts one of a few words; the message is Hungarian.
CLI::Validator oneOf(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += (list.empty() ? "" : "|") + word;
  return {[words, list](std::string& word) {
            const bool known = std::find(words.begin(), words.end(), word) != words.end();
            return known ? std::string{} : "a lehetséges értékek: " + list + " (nem: " + word + ")";
          },
          {}};
}

/// The parser's errors in Hungarian, by kind.
std::string usageText(const CLI::App* app, const CLI::Error& error) {
  std::string text = "Hibás parancssor: ";
  const std::string what = error.what();
  switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::RequiredError: {
      const std::string name = what.substr(0, what.find(" is required"));
      text += "hiányzik: " + (name == "A subcommand" ? "a parancs" : name);
      break;
    }
    case CLI::ExitCodes::ExtrasError:
      text += "ismeretlen vagy fölösleges:" + what.substr(what.find_last_of(':') + 1);
      break;
    case CLI::ExitCodes::ArgumentMismatch:
      text += "egy kapcsoló értéke hiányzik, vagy túl sok van belőle";
      break;
    case CLI::ExitCodes::ValidationError:
      text += what;
      break;
    default:
      text += "egy kapcsoló értéke nem megfelelő";
  }
  return text + "\nSegítség: " + app->get_name() + " --help\n";
}

constexpr const char* optionGroup = "Kapcsolók";

void makeHungarian(CLI::App& app) {
  const auto formatter = app.get_formatter();
  formatter->label("Usage", "Használat");
  formatter->label("OPTIONS", "KAPCSOLÓK");
  formatter->label("SUBCOMMAND", "PARANCS");
  formatter->label("Positionals", "Adatok");
  formatter->label("REQUIRED", "(kötelező)");
  app.set_help_flag("-h,--help", "Ez a segítség")->group(optionGroup);
  app.option_defaults()->group(optionGroup);
}

CLI::App* addCommand(CLI::App& app, const std::string& name, const std::string& description) {
  CLI::App* const command = app.add_subcommand(name, description);
  command->group("Parancsok");
  command->set_help_flag("-h,--help", "Ez a segítség")->group(optionGroup);
  return command;
}

void addShow(CLI::App& app, ShowOptions& options) {
  CLI::App* const command = addCommand(app, "show", "Megnyit egy Setup fájlt, és kiírja.");
  command->add_option("FILE.pwm", options.file, "A Setup fájl")
      ->required()
      ->option_text("(kötelező)");
  command->add_flag("--json", options.json, "Kiírás egyetlen JSON objektumként");
}

void addUpload(CLI::App& app, UploadOptions& options) {
  CLI::App* const command =
      addCommand(app, "upload", "Megnyit egy Setup fájlt, és feltölti a vezérlőbe.");
  command->add_option("FILE.pwm", options.file, "A Setup fájl")
      ->required()
      ->option_text("(kötelező)");
  command->add_option("--port", options.port, "Mire menjen ki (sim: szimulált port)")
      ->required()
      ->option_text("sim (kötelező)")
      ->check(oneOf({"sim"}));
  command->add_option("--lpt", options.lpt, "Port címe; enélkül a programban beállított")
      ->option_text("378|278|3BC")
      ->check(oneOf({"378", "278", "3BC"}));
  command->add_option("--pcb", options.pcb, "Panel verziója; enélkül a programban beállított")
      ->option_text("32|40")
      ->check(oneOf({"32", "40"}));
  command->add_option("--vcd", options.vcd, "A port minden írása ebbe a fájlba (Value Change Dump)")
      ->option_text("OUT.vcd");
  command->add_flag("--yes", options.yes, "Kérdés nélkül");
}

int run(int argc, char** argv) {
  CLI::App app("Monitra parancssorból: Setup fájl megnézése és feltöltése.", "monitra-ctl");
  makeHungarian(app);
  app.failure_message(usageText);
  app.footer("Kilépési kód: 0 kész, 1 fájlhiba, 2 hibás parancssor, 3 porthiba.");
  app.require_subcommand(1);
  ShowOptions showOptions;
  UploadOptions uploadOptions;
  addShow(app, showOptions);
  addUpload(app, uploadOptions);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? done : usageError;
  }
  return app.got_subcommand("show") ? show(showOptions) : upload(uploadOptions);
}

}  // namespace

int main(int argc, char** argv) {
  monitra::host::surviveWriteSignals();
  int exitCode = fileError;
  try {
    exitCode = run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "Váratlan hiba: " << error.what() << '\n';
  }
  if (!std::cout.flush() && exitCode == done) {
    std::cerr << "A kimenetet nem lehetett kiírni.\n";
    return fileError;
  }
  return exitCode;
}
