#include "ports/printer_ports.h"

#include "ports/steps.h"
#include "support/fake_driver.h"
#include "support/scratch.h"

namespace monitra::ports {
namespace {

using namespace support;

struct PortsOfAPc : Steps {
  void startProgram() {
    ports = std::make_unique<PrinterPorts>(std::vector<PortDriver*>{&kernel, &raw}, memory,
                                           [this] { return now; });
    ports->changed = [this] { tell("changed"); };
  }

  Scratch scratch;
  FakeDriver kernel{[this](auto& what) { tell(what); }};
  FakeDriver raw{[this](auto& what) { tell(what); }, "raw-"};
  ControlMemory memory{scratch.path("monitra"), "this-boot"};
  std::unique_ptr<PrinterPorts> ports;
};

TEST_F(PortsOfAPc, AreOpenedAtTheirUseAndHeldAndNeverReplacedAndNoMessageEndsOnAnother) {
  play("printer ports",
       {{"start", [this](auto&, auto&) { startProgram(); }},
        {"write",
         [this](auto& at, auto& value) {
           ports->DlPortWritePortUchar(number(at), static_cast<std::uint8_t>(number(value)));
         }},
        {"read", [this](auto& at, auto&) { tell(hex(ports->DlPortReadPortUchar(number(at)))); }},
        {"try", [this](auto& entry, auto&) { ports->tryAgain(number(entry)); }},
        {"message", [this](auto&, auto& begins) { ports->markMessage(begins == "begins"); }},
        {"kind",
         [this](auto& entry, auto&) {
           tell(std::to_string(static_cast<int>(ports->state(number(entry)).kind)));
         }},
        {"vanished", [this](auto&, auto&) { tell(std::to_string(ports->vanished())); }},
        {"plug",
         [this](auto& port, auto& at) {
           kernel.found.push_back({number(port), number(at)});
         }},
        {"plug raw",
         [this](auto& port, auto& at) {
           raw.found.push_back({number(port), number(at)});
         }},
        {"unplug", [this](auto&, auto&) { kernel.found.clear(); }},
        {"refuse",
         [this](auto& port, auto& k) {
           kernel.refused[number(port)] = FakeDriver::Kind{std::stoi(k)};
         }},
        {"refuse raw",
         [this](auto& port, auto& k) {
           raw.refused[number(port)] = FakeDriver::Kind{std::stoi(k)};
         }},
        {"allow", [this](auto&, auto&) { kernel.refused.clear(); }},
        {"fail", [this](auto&, auto& how) {
           kernel.fails = [fails = how != "no more"] { return fails; };
         }}});
}

TEST(ControlMemory, KeepsAValueForThisRunOfThePcInAFolderOfItsOwn) {
  const Scratch scratch;
  const std::string folder = scratch.path("monitra");
  const ControlMemory memory(folder, "this-boot");
  memory.keep(0xD010, 0x0C);
  memory.keep(0x378, 0x06);
  EXPECT_EQ(memory.last(0x378), 0x06);
  EXPECT_EQ(ControlMemory(folder, "that-boot").last(0x378), std::nullopt);
  for (const char* const damaged : {"", "this-boot", "this-boot zz", "this-boot 100"}) {
    scratch.write("monitra/control-378", damaged);
    EXPECT_EQ(memory.last(0x378), std::nullopt) << damaged;
  }
  namespace fs = std::filesystem;
  fs::create_symlink(scratch.write("fontos.txt", "this-boot 05\n"), folder + "/control-278");
  memory.keep(0x278, 0x0E);
  EXPECT_EQ(scratch.read("fontos.txt"), "this-boot 05\n");
  ::setenv("XDG_RUNTIME_DIR", scratch.path().c_str(), 1);
  ControlMemory::ofUser().keep(0x3BC, 0x0E);
  EXPECT_EQ(ControlMemory::ofUser().last(0x3BC), 0x0E);
  EXPECT_TRUE(fs::exists(folder + "/control-3bc"));
  fs::permissions(folder, fs::perms::others_write, fs::perm_options::add);
  memory.keep(0xD010, 0x0E);
  EXPECT_EQ(memory.last(0xD010), 0x0C) << "nothing is kept where others can write";
}

}  // namespace
}  // namespace monitra::ports
