#include "firmware/image_check.h"

#include <gtest/gtest.h>

#include "host/host_files.h"
#include "support/image.h"
#include "support/scratch.h"

namespace monitra::firmware {
namespace {

using platform::Failure;

TEST(ImageCheck, TellsOfEachRecordWhatIsWrong) {
  using Faults = std::vector<std::string>;
  const support::Scratch scratch;
  host::HostFiles files;
  const support::Block block;
  const std::string end = support::closingRecord + "\n";
  const std::string a = block.line4200 + "\n";
  const std::string b = block.line4210 + "\n";
  const std::string c = block.line4220 + "\n";
  const auto with = [&b](std::size_t at, const std::string& to) {
    return std::string(b).replace(at, to.size(), to);
  };
  const auto here = [](const char* address, const std::string& fault) {
    return std::string("itt a paraméterblokk ") + address + " című rekordja " + fault;
  };
  const std::string missing = "2 " + here("4210", "kellene, hogy álljon");
  const std::string noEnd = "0 nincs záró rekord (:00000001FF), a fájl csonka lehet";
  const std::string noBlock = "0 nincs paraméterblokk (4200 című rekord)";
  const std::string cut = "0 a fájl a paraméterblokk közepén véget ér";
  const std::string stray =
      "1 innen olvassa a program a verziót, pedig ez nem a paraméterblokk rekordja";
  struct Case {
    std::string image;
    Faults faults;
    bool sound = false;
  };
  for (const Case& k : std::vector<Case>{
           {":020000040000FA\r\n\r\n" + support::lower(a + b + c) + ":020000040001F9\n" + c + end +
                "\n",
            {},
            true},
           {a + with(0, ";") + c + end, {"2 nem kettősponttal kezdődik, ezért nem rekord"}},
           {"x,  " + a + b + "  " + c + end,
            {"1 nem kettősponttal kezdődik, ezért nem rekord",
             "3 nem kettősponttal kezdődik, ezért nem rekord"},
            true},
           {a + with(14, "O") + c + end, {"2 15. karakter nem hexadecimális számjegy: O"}},
           {a + with(1, "0F") + c + end,
            {"2 a rekord hossza hibás: 15 adatbájt helyett 16 van benne"}},
           {a + with(41, "00") + c + end,
            {"2 az ellenőrző összeg hibás: 00 helyett C1 a jó"},
            true},
           {a + with(7, "09") + c + end, {"2 az ellenőrző összeg hibás: C1 helyett B8 a jó"}},
           {a + ":00421000\n" + c + end, {"2 csonka rekord"}},
           {a + block.line4210 + "0\n" + c + end, {"2 csonka rekord"}},
           {a + block.line4210 + "00\n" + c + end,
            {"2 a rekord hossza hibás: 16 adatbájt helyett 17 van benne"}},
           {a + "\n" + c + end, {missing + ", 16 adatbájttal"}},
           {a + support::record(0x4210, {1, 2}) + "\n" + c + end, {missing + ", 16 adatbájttal"}},
           {a + support::record(0x4210, {}, 1) + "\n" + c,
            {missing + ", 16 adatbájttal", "3 rekord a záró rekord után"}},
           {a + support::wordRecord(0x4230, {1, 2, 3, 4, 5, 6, 7, 8}) + "\n" + c + end, {missing}},
           {":020000021000EC\n" + a + b + c + end,
            {"2 " + here("4200", "áll, de kiterjesztett címmel nem oda esik")}},
           {support::record(0x4220, {}) + "\n" + a + b + c + end, {stray}},
           {support::record(0, {1}, 6) + "\n" + support::record(0, {1}, 4) + "\n" + end,
            {"1 ismeretlen rekordtípus: 06", "2 az ilyen típusú rekordban nem lehet 1 adatbájt",
             noBlock}},
           {a + b, {cut, noEnd}},
           {"", {"0 egyetlen rekord sincs benne, ez nem hex fájl"}},
           {std::string((16 << 20) + 1, '0'), {"1 túl hosszú sor, ez nem hex fájl"}}}) {
    const ImageReport report = checkImage(files, scratch.write("k.hex", k.image));
    Faults faults;
    for (const ImageFault& fault : report.faults) {
      faults.push_back(std::to_string(fault.line) + " " + fault.reason);
    }
    EXPECT_EQ(faults, k.faults) << k.image.substr(0, 200);
    EXPECT_EQ(report.blockIsSound, k.sound) << k.image.substr(0, 200);
  }
  std::string page;
  for (int line = 0; line < 30; ++line) page += "<br>\n";
  const ImageReport report = checkImage(files, scratch.write("k.hex", page + a + b + "x\n"));
  EXPECT_EQ(report.faultCount, 32);
  EXPECT_EQ(report.records, 2);
  EXPECT_EQ(report.blockLine, 31);
  ASSERT_EQ(report.faults.size(), 22U)
      << "those of the block and of the whole file are not cut off";
  EXPECT_EQ(report.faults[20].line, 33);
  EXPECT_EQ(checkImage(files, scratch.path("nincs")).failure, Failure::FileNotFound);
}

}  // namespace
}  // namespace monitra::firmware
