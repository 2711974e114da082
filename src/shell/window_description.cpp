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
    ControlWords{"Label18", "Sebesség:", ""},
    ControlWords{"Seb", "", ""},
    ControlWords{"Label17", "Lépés/másodperc", ""},
    ControlWords{"Invert", "", "irány váltás"},
    ControlWords{"Label19", "LPT port:", ""},
    ControlWords{"LPT", "", "Nyomtató port címe"},
    ControlWords{"PCBV", "", ""},

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
    DiagramLine{"Line1", 240, 720, 240, 2040},
    DiagramLine{"Line2", 240, 2040, 5520, 2040},
    DiagramLine{"Line3", 360, 1680, 720, 1680},
    DiagramLine{"LineTarso1", 720, 1200, 720, 1680},
    DiagramLine{"LineTarso2", 720, 1200, 1200, 1200},
    DiagramLine{"LineVilor1", 720, 1440, 720, 1680},
    DiagramLine{"LineVilor2", 1200, 1440, 720, 1440},
    DiagramLine{"LineVilor3", 1200, 1200, 1200, 1440},
    DiagramLine{"Line11", 1200, 1200, 1200, 1800, true},
    DiagramLine{"Line4", 2640, 1200, 1200, 1200},
    DiagramLine{"Line5", 2640, 1680, 2640, 1200},
    DiagramLine{"Line6", 3840, 1680, 2640, 1680},
    DiagramLine{"Line7(0)", 3840, 1200, 3840, 1680},
    DiagramLine{"Line8(0)", 4080, 1200, 3840, 1200},
    DiagramLine{"Line9(0)", 4080, 1680, 4080, 1200},
    DiagramLine{"Line10", 5160, 1680, 4080, 1680},
    DiagramLine{"Line7(1)", 5160, 1200, 5160, 1680},
    DiagramLine{"Line8(1)", 5400, 1200, 5160, 1200},
    DiagramLine{"Line9(1)", 5400, 1680, 5400, 1200},
};

constexpr std::array heads{
    DiagramHead{"Label2", 960, 1800},
    DiagramHead{"Label1", 1920, 1800},
    DiagramHead{"Label3(0)", 2880, 1800},
    DiagramHead{"Label4(0)", 3840, 1800},
    DiagramHead{"Label4(1)", 5160, 1800, false},
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

std::span<const DiagramLine> diagramLines() {
  return lines;
}

std::span<const DiagramHead> diagramHeads() {
  return heads;
}

}  // namespace monitra::shell
