#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "host/executable.h"
#include "timing/numbers.h"

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

/// Why there is no command, by the words that the parser could not place.
std::string commandFault(const std::vector<std::string>& unknown) {
  if (unknown.empty()) return "hiányzik: a parancs";
  const std::string& first = unknown.front();
  return (first.starts_with('-') ? "ismeretlen kapcsoló: " : "ismeretlen parancs: ") + first;
}

/// The parser's errors in Hungarian, by kind.
std::string usageText(const CLI::App* app, const CLI::Error& error) {
  std::string text = "Hibás parancssor: ";
  const std::string what = error.what();
  switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::RequiredError: {
      const std::string name = what.substr(0, what.find(" is required"));
      text += name == "A subcommand" ? commandFault(app->remaining(true)) : "hiányzik: " + name;
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

/// "monitra-ctl 2.2.0"
std::string versionText(const std::string& name) {
  const auto program = monitra::host::programIdentity(name);
  return name + " " + std::to_string(program.Major) + "." + std::to_string(program.Minor) + "." +
         std::to_string(program.Revision);
}

void makeHungarian(CLI::App& app) {
  const auto formatter = app.get_formatter();
  formatter->label("Usage", "Használat");
  formatter->label("OPTIONS", "KAPCSOLÓK");
  formatter->label("SUBCOMMAND", "PARANCS");
  formatter->label("Positionals", "Adatok");
  formatter->label("REQUIRED", "(kötelező)");
  app.set_help_flag("-h,--help", "Ez a segítség")->group(optionGroup);
  app.set_version_flag("--version", versionText(app.get_name()), "A program verziója")
      ->group(optionGroup);
  app.option_defaults()->group(optionGroup);
}

CLI::App* addCommand(CLI::App& app, const std::string& name, const std::string& description) {
  CLI::App* const command = app.add_subcommand(name, description);
  command->group("Parancsok");
  command->set_help_flag("-h,--help", "Ez a segítség")->group(optionGroup);
  return command;
}

void addFile(CLI::App* command, const std::string& name, std::string& file,
             const std::string& description) {
  command->add_option(name, file, description)->required()->option_text("(kötelező)");
}

void addJson(CLI::App* command, bool& json) {
  command->add_flag("--json", json, "Kiírás egyetlen JSON objektumként");
}

void addShow(CLI::App& app, ShowOptions& options) {
  CLI::App* const command = addCommand(app, "show", "Megnyit egy Setup fájlt, és kiírja.");
  addFile(command, "FILE.pwm", options.file, "A Setup fájl");
  command
      ->add_option("--spm", options.spm,
                   "A sebességek mm/s-ban és mm/percben is, ennyi mm/lépéssel")
      ->option_text("MM")
      ->check([](const std::string& text) {
        using namespace monitra::timing;
        constexpr double most = 3;
        const bool fits = isNumber(text) && Ertek(text) > 0 && Ertek(text) <= most;
        return fits ? std::string() : "0 és 3 közti szám kell, például 0.0125 (nem: " + text + ")";
      });
  addJson(command, options.json);
}

void addDiff(CLI::App& app, DiffOptions& options) {
  CLI::App* const command = addCommand(app, "diff",
                                       "Két fájl (.pwm vagy .hex) eltérő mezői. Kilépési kód: 0 "
                                       "egyforma, 1 eltér, 3 olvashatatlan.");
  addFile(command, "A", options.first, "Setup vagy firmware");
  addFile(command, "B", options.second, "Setup vagy firmware");
  addJson(command, options.json);
}

void addPort(CLI::App* command, PortOptions& options) {
  command
      ->add_option("--port", options.port,
                   "Mire menjen ki: a kernel meghajtójára, a regiszterekre vagy szimulált portra; "
                   "enélkül auto: a meghajtóra, és ha az nem megy, a regiszterekre")
      ->option_text("auto|kernel|raw|sim")
      ->check(oneOf({"auto", "kernel", "raw", "sim"}));
  command->add_option("--lpt", options.lpt, "Port címe; enélkül a programban beállított")
      ->option_text("378|278|3BC")
      ->check(oneOf({"378", "278", "3BC"}));
  command->add_option("--pcb", options.pcb, "Panel verziója; enélkül a programban beállított")
      ->option_text("32|40")
      ->check(oneOf({"32", "40"}));
  command->add_flag("--yes", options.yes, "Kérdés nélkül");
}

void addUpload(CLI::App& app, UploadOptions& options) {
  CLI::App* const command =
      addCommand(app, "upload", "Megnyit egy Setup fájlt, és feltölti a vezérlőbe.");
  addFile(command, "FILE.pwm", options.file, "A Setup fájl");
  addPort(command, options.port);
  command->add_option("--vcd", options.vcd, "A port minden írása ebbe a fájlba (Value Change Dump)")
      ->option_text("OUT.vcd");
  command->add_flag("--force", options.force, "A --vcd felülírhat egy meglévő fájlt");
}

void addOff(CLI::App& app, PortOptions& options) {
  addPort(addCommand(app, "off", "Kikapcsolja a motorokat (a vezérlő PC-Link módban van)."),
          options);
}

template <std::size_t count>
void addWord(CLI::App* command, const std::string& name, std::string& word,
             const std::array<const char*, count>& words, const std::string& description) {
  command->add_option(name, word, description)
      ->required()
      ->option_text("(kötelező)")
      ->check(oneOf({words.begin(), words.end()}));
}

void addFrame(CLI::App& app, FrameOptions& options) {
  CLI::App* const command =
      addCommand(app, "frame", "Egy keret: egy motor egy fázisa be, vagy a motor ki.");
  addWord(command, "MOTOR", options.motor, motorWords, "x, y vagy z");
  addWord(command, "FAZIS", options.line, lineWords, "l1, l2, l3, l4 vagy ki");
  addPort(command, options.port);
}

void addPorts(CLI::App& app, bool& json) {
  addJson(addCommand(app, "ports", "A gép nyomtatóportjai, és hogy használhatók-e."), json);
}

void addDecode(CLI::App& app, DecodeOptions& options) {
  CLI::App* const command =
      addCommand(app, "decode", "Egy VCD-felvétel üzenetei, vagy két felvétel eltérései.");
  addFile(command, "TRACE.vcd", options.file, "A felvétel");
  command
      ->add_option("--data", options.data,
                   "Az adatvezeték neve egy más programtól való felvételben; a --clock is kell")
      ->option_text("NÉV");
  command->add_option("--clock", options.clock, "Az órajelvezeték neve")->option_text("NÉV");
  command->add_option("--pcb", options.pcb, "Panel verziója, ha a felvétel nem mondja meg")
      ->option_text("32|40")
      ->check(oneOf({"32", "40"}));
  command
      ->add_option("--compare", options.other,
                   "Másik felvétel: az eltéréseket írja ki; a kód 1, ha van, 0, ha nincs")
      ->option_text("B.vcd");
  addJson(command, options.json);
}

struct FirmwareOptions {
  ShowOptions show;
  PatchOptions patch;
  std::string verify;
};

void addFirmware(CLI::App& app, FirmwareOptions& options) {
  CLI::App* const commands =
      addCommand(app, "firmware", "A vezérlő firmware-e (.hex): paraméterblokk és ellenőrzés.");
  commands->require_subcommand(1);
  CLI::App* const show =
      addCommand(*commands, "show", "Beolvassa a paraméterblokkot, és kiírja a Setupot.");
  addFile(show, "FW.hex", options.show.file, "A firmware");
  addJson(show, options.show.json);

  CLI::App* const patch = addCommand(*commands, "patch", "Másolatot ír egy Setup értékeivel.");
  addFile(patch, "FW.hex", options.patch.firmware, "A firmware, amely nem változik");
  addFile(patch, "SETUP.pwm", options.patch.setup, "A Setup fájl");
  addFile(patch, "OUT.hex", options.patch.target, "A másolat; még nem létező fájl");

  CLI::App* const verify =
      addCommand(*commands, "verify", "Minden rekord alakját, hosszát és összegét ellenőrzi.");
  addFile(verify, "FW.hex", options.verify, "A firmware");
}

ExitCode runFirmware(const CLI::App& command, const FirmwareOptions& options) {
  if (command.got_subcommand("show")) return firmwareShow(options.show);
  if (command.got_subcommand("patch")) return firmwarePatch(options.patch);
  return firmwareVerify(options.verify);
}

int run(int argc, char** argv) {
  CLI::App app("Monitra parancssorból: Setup fájl, firmware és felvétel megnézése, feltöltés.",
               "monitra-ctl");
  makeHungarian(app);
  app.failure_message(usageText);
  app.footer("Kilépési kód: 0 kész, 1 fájlhiba vagy eltérés, 2 hibás parancssor, 3 porthiba.");
  app.require_subcommand(1);
  ShowOptions showOptions;
  UploadOptions uploadOptions;
  PortOptions offOptions;
  FrameOptions frameOptions;
  bool portsAsJson = false;
  FirmwareOptions firmwareOptions;
  DecodeOptions decodeOptions;
  DiffOptions diffOptions;
  addShow(app, showOptions);
  addDiff(app, diffOptions);
  addUpload(app, uploadOptions);
  addOff(app, offOptions);
  addFrame(app, frameOptions);
  addPorts(app, portsAsJson);
  addFirmware(app, firmwareOptions);
  addDecode(app, decodeOptions);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? done : usageError;
  }
  if (app.got_subcommand("firmware")) {
    return runFirmware(*app.get_subcommand("firmware"), firmwareOptions);
  }
  if (app.got_subcommand("show")) return show(showOptions);
  if (app.got_subcommand("diff")) return diff(diffOptions);
  if (app.got_subcommand("off")) return off(offOptions);
  if (app.got_subcommand("frame")) return frame(frameOptions);
  if (app.got_subcommand("decode")) return decode(decodeOptions);
  if (app.got_subcommand("ports")) return listPorts(portsAsJson);
  return upload(uploadOptions);
}

}  // namespace

int main(int argc, char** argv) {
  monitra::host::openStandardDescriptors();
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
