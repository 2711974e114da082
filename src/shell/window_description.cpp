#include "shell/window_description.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace monitra::shell {

namespace {

constexpr std::string_view unitTip = "PWM alapidők 0.1mS (10kHz)";
constexpr std::string_view holdingTip = "PWM fékező gerjesztési frekvencia és kitöltési tényezője";
constexpr std::string_view wholeStepTip = "Fél és egész léptetési rendszer váltása.";
constexpr std::string_view makerTip = "Monitra";

constexpr std::array words{
    // Footer
    ControlWords{"Label21", "Tarso1 CNC Vezérlő Setup & Test", ""},
    ControlWords{"Label13", "www.monitra.example", makerTip},
    ControlWords{"Label14", "www.monitra.example/cnc", makerTip},

    // Motor Setup
    ControlWords{"Label23", "PWM", ""},
    ControlWords{"Cim", "", "Gerjesztési módja és PWM alap frekvenciája"},
    ControlWords{"lepes", "", "Firmware verzió."},
    ControlWords{"Vegallas", "", "Végállás detekt álapota"},
    ControlWords{"Picture1", "", ""},
    ControlWords{"Label6(0)", "X", "Motor adatok"},
    ControlWords{"Label6(1)", "Y", "Motor adatok"},
    ControlWords{"Label6(2)", "Z", "Motor adatok"},
    ControlWords{"Label2", "TF", unitTip},
    ControlWords{"Label1", "T1", unitTip},
    ControlWords{"Label3(0)", "T2", unitTip},
    ControlWords{"Label4(0)", "T3", unitTip},
    ControlWords{"Label4(1)", "T3", unitTip},
    ControlWords{"TF", "", "Félléptetési idő és túlhajtás jelzési küszöb"},
    ControlWords{"T1", "", "Maximális áram felfutási idő (Sv)"},
    ControlWords{"T2", "", "Tartóági szünet idő"},
    ControlWords{"T3", "", "Tartóági gerjesztési idő"},
    ControlWords{"FolLe", "", ""},
    ControlWords{"Frame1", "Túlhajtás jelzés", "Lépésvesztés nélküli csúcs sebesség"},
    ControlWords{"Csucsf", "", "Lépésvesztés nélküli csúcs sebesség (Step/sec)"},
    ControlWords{"Frame2", "Áram határolás", "Áram határolási sebesség (Sv)"},
    ControlWords{"Nhatar", "", "Korlátozási pont (Step/sec)"},
    ControlWords{"Frame3", "Tartóág: (f (%))", "PWM fékező gerjesztési frekvencia"},
    ControlWords{"Xttarto", "", holdingTip},
    ControlWords{"Yttarto", "", holdingTip},
    ControlWords{"Zttarto", "", holdingTip},
    ControlWords{"Label5", "Speciális funkciók:", ""},
    ControlWords{"Funkcio", "", "Tuning és diagnosztikák"},
    ControlWords{"Label7", "Motor tuningút lépésszáma:", ""},
    ControlWords{"Ut", "", "Mind a három tengelyre érvényes!"},
    ControlWords{"Utfolle", "", ""},
    ControlWords{"Label8", "mm/Step=", ""},
    ControlWords{"Spm", "", "Egy lépésre megtett út hossza mm-ben"},
    ControlWords{"Label9", "Út hossz=", ""},
    ControlWords{"Label10", "mm", ""},
    ControlWords{"Uthossz", "", "Mérési út hossza"},
    ControlWords{"Label11", "Motor tuning vágállás hiba tűrése:", ""},
    ControlWords{"Label12", "Step/mérés", ""},
    ControlWords{"Tures", "", "Végállás pontatlansági kompenzáció"},
    ControlWords{"Turesfolle", "", ""},
    ControlWords{"Label31", "Rendszer:", ""},
    ControlWords{"Xegesz", "", wholeStepTip},
    ControlWords{"Yegesz", "", wholeStepTip},
    ControlWords{"Zegesz", "", wholeStepTip},
    ControlWords{"Label15", "", ""},
    ControlWords{"Verz", "", "Betöltött Firmware verzió"},
    ControlWords{"Letolt", "Feltöltés (PC-Link)", "Setup adatok feltöltése a vezérlőbe!"},
    ControlWords{"Label22", "Adatátvitel állapota:", ""},
    ControlWords{"Bar", "", ""},

    // Teszt
    ControlWords{"Label20", "Szolid vezérlési teszt", ""},
    ControlWords{"Label30", "Ne használja PC-Link módban!",
                 "A teszt összeakadhat a PC-Link alatti kommunikációval!"},
    ControlWords{"Label16(0)", "Z", ""},
    ControlWords{"Label16(1)", "Y", ""},
    ControlWords{"Label16(2)", "X", ""},
    ControlWords{"Mozg(0)", "", "X tengely"},
    ControlWords{"Mozg(1)", "", "X tengely"},
    ControlWords{"Mozg(2)", "", "Y tengely"},
    ControlWords{"Mozg(3)", "", "Y tengely"},
    ControlWords{"Mozg(4)", "", "Z tengely"},
    ControlWords{"Mozg(5)", "", "Z tengely"},
    ControlWords{"Invert", "", "irány váltás"},
    ControlWords{"SpindleGomb", "Marómotor (relé)", ""},
    ControlWords{"Label18", "Sebesség:", ""},
    ControlWords{"Label17", "Lépés/másodperc", ""},
    ControlWords{"Seb", "", ""},
    ControlWords{"Impulzus", "Impulzus engedély", "Impulzus generátor ingedélyezése"},
    ControlWords{"Label19", "LPT port:", ""},
    ControlWords{"LPT", "", "Nyomtató port címe"},
    ControlWords{"Picture2(0)", "", "Kommunikáció módja PCB verziójának megfelelően!"},
    ControlWords{"PCBV", "", ""},
    ControlWords{"Frame4", "Direkt bit beállítás:", ""},
    ControlWords{"Cim1", "", ""},
    ControlWords{"Bitcim", "", ""},
    ControlWords{"Cim2", "", ""},
    ControlWords{"Bitcim(8)", "", "Relé"},
    ControlWords{"Kuld", "Kiküldés", "Bitek kiüldése"},
    ControlWords{"Torles", "0 (low) Kiküldés", "Bitek nullázása"},

    // PC-Link
    ControlWords{"Label24",
                 "Motor egyirányú forgásához tartozó helyes fázis sorrend keresés és FET teszt.",
                 ""},
    ControlWords{"Label27", "Használatához a vezérlőt állítsa át PC-Link üzemmódba!", ""},
    ControlWords{"Frame5", "X Motor Gerjesztés:", ""},
    ControlWords{"Frame6", "Y Motor Gerjesztés:", ""},
    ControlWords{"Frame7", "Z Motor Gerjesztés:", ""},
    ControlWords{"Label26", "Fázis (sorkapocs)", ""},
    ControlWords{"L(0)", "L1 (CON17)", ""},
    ControlWords{"L(1)", "+   (CON18)", ""},
    ControlWords{"L(2)", "L2 (CON19)", ""},
    ControlWords{"L(3)", "L3 (CON20)", ""},
    ControlWords{"L(4)", "+   (CON21)", ""},
    ControlWords{"L(5)", "L4 (CON22)", ""},
    ControlWords{"L(6)", " Ki", ""},
    ControlWords{"L(7)", "Ki", ""},
    ControlWords{"L(8)", "L4 (CON28)", ""},
    ControlWords{"L(9)", "+   (CON27)", ""},
    ControlWords{"L(10)", "L3 (CON26)", ""},
    ControlWords{"L(11)", "L2 (CON25)", ""},
    ControlWords{"L(12)", "+   (CON24)", ""},
    ControlWords{"L(13)", "L1 (CON23)", ""},
    ControlWords{"L(14)", "Ki", ""},
    ControlWords{"L(15)", "L4 (CON34)", ""},
    ControlWords{"L(16)", "+   (CON33)", ""},
    ControlWords{"L(17)", "L3 (CON32)", ""},
    ControlWords{"L(18)", "L2 (CON31)", ""},
    ControlWords{"L(19)", "+   (CON30)", ""},
    ControlWords{"L(20)", "L1 (CON29)", ""},
    ControlWords{"Leptet", "Léptetés", ""},
    ControlWords{"Frame8", "Tápegység terhelési teszt:", ""},
    ControlWords{"TapFel", "Terhelés", ""},
    ControlWords{"TapStop", "", ""},
    ControlWords{"Taptext", "", ""},
    ControlWords{"Label28", "Terhelés", ""},
    ControlWords{"LEDsav", "", ""},
    ControlWords{"Label25(0)", "0%", ""},
    ControlWords{"Label25(1)", "200%", ""},
    ControlWords{"TulH", "", ""},
    ControlWords{"Teh200", "", ""},
    ControlWords{"Figy", "FIGYELEM !", ""},
    ControlWords{"Figy2", "", ""},

    // Infó
    ControlWords{"Label29(0)", "Vilor CNC", ""},
    ControlWords{"Label29(1)", "PWM Vezérlő", ""},
    ControlWords{"InfoT", "", ""},

    // Menus
    ControlWords{"MF", "Fájl", ""},
    ControlWords{"MFSetNyit", "Setup Megnyitás", ""},
    ControlWords{"MFSetMent", "Setup Mentés", ""},
    ControlWords{"MFkilepes", "Kilépés", ""},
    ControlWords{"MB", "Beállítás", ""},
    ControlWords{"MBT", "Tartóági frekvencia", ""},
    ControlWords{"MBTallando", "Állandó", ""},
    ControlWords{"MBTValtozo", "Változó", ""},
    ControlWords{"Mkom", "Kommunikáció módja", ""},
    ControlWords{"Mpcb32", "PCB V3.2", ""},
    ControlWords{"Mpcb40", "PCB V4.x", ""},
};

constexpr std::array<std::string_view, 4> tabs{"Motor Setup", "Teszt", "PC-Link", "Infó"};

constexpr std::array lines{
    DrawnLine{"Line1", 240, 720, 240, 2040},
    DrawnLine{"Line2", 240, 2040, 5520, 2040},
    DrawnLine{"Line3", 360, 1680, 720, 1680},
    DrawnLine{"LineTarso1", 720, 1200, 720, 1680},
    DrawnLine{"LineTarso2", 720, 1200, 1200, 1200},
    DrawnLine{"LineVilor1", 720, 1440, 720, 1680},
    DrawnLine{"LineVilor2", 1200, 1440, 720, 1440},
    DrawnLine{"LineVilor3", 1200, 1200, 1200, 1440},
    DrawnLine{"Line11", 1200, 1200, 1200, 1800, true},
    DrawnLine{"Line4", 2640, 1200, 1200, 1200},
    DrawnLine{"Line5", 2640, 1680, 2640, 1200},
    DrawnLine{"Line6", 3840, 1680, 2640, 1680},
    DrawnLine{"Line7(0)", 3840, 1200, 3840, 1680},
    DrawnLine{"Line8(0)", 4080, 1200, 3840, 1200},
    DrawnLine{"Line9(0)", 4080, 1680, 4080, 1200},
    DrawnLine{"Line10", 5160, 1680, 4080, 1680},
    DrawnLine{"Line7(1)", 5160, 1200, 5160, 1680},
    DrawnLine{"Line8(1)", 5400, 1200, 5160, 1200},
    DrawnLine{"Line9(1)", 5400, 1680, 5400, 1200},
};

constexpr std::array heads{
    DrawnLabel{"Label2", 960, 1800},
    DrawnLabel{"Label1", 1920, 1800},
    DrawnLabel{"Label3(0)", 2880, 1800},
    DrawnLabel{"Label4(0)", 3840, 1800},
    DrawnLabel{"Label4(1)", 5160, 1800, false},
};

constexpr std::array axes{
    DrawnLine{"Line12", 600, 4560, 600, 2880},
    DrawnLine{"Line14", 600, 4560, 2280, 2880},
    DrawnLine{"Line13", 600, 4560, 6960, 4560},
};

constexpr std::array letters{
    DrawnLabel{"Label16(0)", 680, 2820},
    DrawnLabel{"Label16(2)", 2360, 2820},
    DrawnLabel{"Label16(1)", 6960, 4290},
};

}  // namespace

const ControlWords& controlWords(std::string_view name) {
  const auto found = std::find_if(words.begin(), words.end(),
                                  [name](const ControlWords& entry) { return entry.name == name; });
  assert(found != words.end());
  return *found;
}

std::span<const std::string_view> tabCaptions() {
  return tabs;
}

std::span<const DrawnLine> diagramLines() {
  return lines;
}

std::span<const DrawnLabel> diagramHeads() {
  return heads;
}

std::span<const DrawnLine> axisLines() {
  return axes;
}

std::span<const DrawnLabel> axisLetters() {
  return letters;
}

}  // namespace monitra::shell
