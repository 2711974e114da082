#pragma once

#include <span>
#include <string_view>

#include "shell/window_description.h"

/// What is on the window: the one place that has the names of its controls.
namespace monitra::shell::window {

inline constexpr std::string_view unitTip = "PWM alapidők 0.1mS (10kHz)";
inline constexpr std::string_view holdingTip =
    "PWM fékező gerjesztési frekvencia és kitöltési tényezője";
inline constexpr std::string_view wholeStepTip = "Fél és egész léptetési rendszer váltása.";
inline constexpr std::string_view makerTip = "Monitra";
inline constexpr std::string_view arrowHint =
    "A fel és a le billentyű és a görgő is lépteti, a PageUp és a PageDown tízesével, a Home és az "
    "End a határáig.";
inline constexpr std::string_view jogHint =
    "Amíg az egér vagy a szóköz lenyomva tartja, léptet, ha az impulzusgenerátor jár.";
inline constexpr std::string_view phaseHint = "A motornak csak ezt a fázisát kapcsolja be.";
inline constexpr std::string_view supplyHint = "A csatlakozó plusz pontja, nem kapcsolható.";
inline constexpr std::string_view offHint = "A motort kikapcsolja.";

// A table to be read across; the formatter would give each field a line of its own.
// clang-format off
inline constexpr ControlDescription controls[] = {
    // The window
    {.name = "SSTab1", .kind = Kind::TabStrip, .spoken = "Fülek"},

    // Footer
    {.name = "Label21", .kind = Kind::Label, .caption = "Tarso1 CNC Vezérlő Setup & Test"},
    {.name = "Label13", .kind = Kind::Label, .caption = "www.monitra.example", .tooltip = makerTip},
    {.name = "Label14", .kind = Kind::Label, .caption = "www.monitra.example/cnc",
     .tooltip = makerTip},
    {.name = "PortAllapot", .kind = Kind::StatusLine, .spoken = "A port állapota",
     .hint = "Melyik portra megy ki, ami kimegy."},
    {.name = "PortTeendo", .kind = Kind::NarrowButton, .caption = "Port…",
     .tooltip = "A port állapota és a teendő", .spoken = "Teendő a porttal"},
    {.name = "Jelek", .kind = Kind::NarrowButton, .caption = "Jelek…",
     .tooltip = "Mi ment ki a portra", .spoken = "Jelek ablaka"},
    {.name = "MotorAram", .kind = Kind::Lamp, .caption = "Motor áram alatt",
     .tooltip = "Ebben a futásban a PC-Link bekapcsolt egy tekercset, és azóta nem kapcsolta ki"},
    {.name = "Maromotor", .kind = Kind::Lamp, .caption = "Marómotor",
     .tooltip = "A relé lábának szintje szerint a marómotor jár"},
    {.name = "OrajelMagas", .kind = Kind::Lamp, .caption = "PC-Link órajel magas",
     .tooltip = "Így a következő üzenet elcsúszna: kapcsolja alacsonyra az órajel bitjét!"},
    {.name = "MentesJel", .kind = Kind::NarrowButton, .tooltip = "Mi változott, hogyan fut az áram, mi ment ki korábban",
     .spoken = "Mentés", .hint = "Más-e a Setup, mint a legutóbb mentett."},
    {.name = "KuldesJel", .kind = Kind::NarrowButton, .tooltip = "Mi változott, hogyan fut az áram, mi ment ki korábban",
     .spoken = "Feltöltés", .hint = "Más-e a Setup, mint a legutóbb kiküldött."},
    {.name = "Esemeny", .kind = Kind::StatusLine, .spoken = "Esemény",
     .hint = "Mire jutott a legutóbbi művelet."},

    // Motor Setup
    {.name = "Label23", .kind = Kind::Label, .caption = "PWM", .state = State::Disabled},
    {.name = "Cim", .kind = Kind::Label, .caption = "Gerjesztés: Hibrid PWM (10 kHz)",
     .tooltip = "Gerjesztési módja és PWM alap frekvenciája"},
    {.name = "lepes", .kind = Kind::BoxedLabel, .caption = " Vilor Firmware: egészlépés ",
     .tooltip = "Firmware verzió."},
    {.name = "Vegallas", .kind = Kind::BoxedLabel, .caption = "Végállások állapota: üres",
     .tooltip = "Végállás detekt álapota"},
    {.name = "Picture1", .elements = {0, 4}, .kind = Kind::Picture, .spoken = "Léptetőmotor képe"},
    {.name = "Label6", .elements = {0, 1}, .kind = Kind::BoxedLabel, .caption = "X",
     .tooltip = "Motor adatok"},
    {.name = "Label6", .elements = {1, 1}, .kind = Kind::BoxedLabel, .caption = "Y",
     .tooltip = "Motor adatok"},
    {.name = "Label6", .elements = {2, 1}, .kind = Kind::BoxedLabel, .caption = "Z",
     .tooltip = "Motor adatok"},
    {.name = "Label2", .kind = Kind::Label, .caption = "TF", .tooltip = unitTip},
    {.name = "Label1", .kind = Kind::Label, .caption = "T1", .tooltip = unitTip},
    {.name = "Label3", .elements = {0, 1}, .kind = Kind::Label, .caption = "T2",
     .tooltip = unitTip},
    {.name = "Label4", .elements = {0, 1}, .kind = Kind::Label, .caption = "T3",
     .tooltip = unitTip},
    {.name = "Label4", .elements = {1, 1}, .kind = Kind::Label, .caption = "T3",
     .tooltip = unitTip, .state = State::Disabled},
    {.name = "TF", .elements = {0, 3}, .kind = Kind::Instrument, .caption = "91",
     .tooltip = "Félléptetési idő és túlhajtás jelzési küszöb", .spoken = "TF %"},
    {.name = "FolLe", .elements = {0, 3}, .kind = Kind::SpinButton, .spoken = "TF % nyilai",
     .hint = arrowHint},
    {.name = "T1", .elements = {3, 3}, .kind = Kind::Instrument, .caption = "244",
     .tooltip = "Maximális áram felfutási idő (Sv)", .spoken = "T1 %"},
    {.name = "FolLe", .elements = {3, 3}, .kind = Kind::SpinButton, .spoken = "T1 % nyilai",
     .hint = arrowHint},
    {.name = "T2", .elements = {6, 3}, .kind = Kind::Instrument, .caption = "24",
     .tooltip = "Tartóági szünet idő", .spoken = "T2 %"},
    {.name = "FolLe", .elements = {6, 3}, .kind = Kind::SpinButton, .spoken = "T2 % nyilai",
     .hint = arrowHint},
    {.name = "T3", .elements = {9, 3}, .kind = Kind::Instrument, .caption = "24",
     .tooltip = "Tartóági gerjesztési idő", .spoken = "T3 %"},
    {.name = "FolLe", .elements = {9, 3}, .kind = Kind::SpinButton, .spoken = "T3 % nyilai",
     .hint = arrowHint},
    {.name = "Frame1", .kind = Kind::Frame, .caption = "Túlhajtás jelzés",
     .tooltip = "Lépésvesztés nélküli csúcs sebesség"},
    {.name = "Csucsf", .elements = {0, 3}, .kind = Kind::Label,
     .tooltip = "Lépésvesztés nélküli csúcs sebesség (Step/sec)", .spoken = "Túlhajtás jelzés %"},
    {.name = "Frame2", .kind = Kind::Frame, .caption = "Áram határolás",
     .tooltip = "Áram határolási sebesség (Sv)"},
    {.name = "Nhatar", .elements = {0, 3}, .kind = Kind::Label,
     .tooltip = "Korlátozási pont (Step/sec)", .spoken = "Áram határolás %"},
    {.name = "Frame3", .kind = Kind::Frame, .caption = "Tartóág: (f (%))",
     .tooltip = "PWM fékező gerjesztési frekvencia"},
    {.name = "Xttarto", .kind = Kind::Label, .tooltip = holdingTip, .spoken = "Tartóág X"},
    {.name = "Yttarto", .kind = Kind::Label, .tooltip = holdingTip, .spoken = "Tartóág Y"},
    {.name = "Zttarto", .kind = Kind::Label, .tooltip = holdingTip, .spoken = "Tartóág Z"},
    {.name = "Label5", .kind = Kind::Label, .caption = "Speciális funkciók:", .mnemonic = 'S',
     .buddy = "Funkcio"},
    {.name = "Funkcio", .kind = Kind::DropDownList, .tooltip = "Tuning és diagnosztikák",
     .spoken = "Speciális funkciók"},
    {.name = "Label7", .kind = Kind::Label, .caption = "Motor tuningút lépésszáma:",
     .mnemonic = 'l', .buddy = "Ut"},
    {.name = "Ut", .kind = Kind::TextBox, .caption = "1000",
     .tooltip = "Mind a három tengelyre érvényes!", .spoken = "Motor tuningút lépésszáma"},
    {.name = "Utfolle", .kind = Kind::SpinButton, .spoken = "Motor tuningút nyilai",
     .hint = arrowHint},
    {.name = "Label8", .kind = Kind::Label, .caption = "mm/Step=", .mnemonic = 'e', .buddy = "Spm"},
    {.name = "Spm", .kind = Kind::TextBox, .caption = "0.0125",
     .tooltip = "Egy lépésre megtett út hossza mm-ben", .spoken = "mm/Step"},
    {.name = "Label9", .kind = Kind::Label, .caption = "Út hossz="},
    {.name = "Uthossz", .kind = Kind::BoxedLabel, .tooltip = "Mérési út hossza",
     .spoken = "Út hossz, mm"},
    {.name = "Label10", .kind = Kind::Label, .caption = "mm"},
    {.name = "Label11", .kind = Kind::Label, .caption = "Motor tuning vágállás hiba tűrése:",
     .mnemonic = 'h', .buddy = "Tures"},
    {.name = "Tures", .kind = Kind::TextBox, .caption = "1",
     .tooltip = "Végállás pontatlansági kompenzáció",
     .spoken = "Motor tuning vágállás hiba tűrése"},
    {.name = "Turesfolle", .kind = Kind::SpinButton, .spoken = "Hibatűrés nyilai",
     .hint = arrowHint},
    {.name = "Label12", .kind = Kind::Label, .caption = "Step/mérés"},
    {.name = "Label31", .kind = Kind::Label, .caption = "Rendszer:"},
    {.name = "Xegesz", .kind = Kind::CheckBox, .caption = "X - egész léptetés",
     .tooltip = wholeStepTip, .mnemonic = 'X'},
    {.name = "Yegesz", .kind = Kind::CheckBox, .caption = "Y - egész léptetés",
     .tooltip = wholeStepTip, .mnemonic = 'Y'},
    {.name = "Zegesz", .kind = Kind::CheckBox, .caption = "Z - egész léptetés",
     .tooltip = wholeStepTip, .mnemonic = 'Z'},
    {.name = "Letolt", .kind = Kind::PushButton, .caption = "Feltöltés (PC-Link)",
     .tooltip = "Setup adatok feltöltése a vezérlőbe!", .state = State::Disabled, .mnemonic = 'F'},
    {.name = "Label22", .kind = Kind::Label, .caption = "Adatátvitel állapota:", .buddy = "Bar"},
    {.name = "Bar", .kind = Kind::ProgressBar, .spoken = "Adatátvitel állapota",
     .hint = "Hol tart a feltöltés."},
    {.name = "Label15", .kind = Kind::Label, .caption = "Firmware verzió:", .state = State::Hidden},
    {.name = "Verz", .kind = Kind::Label, .caption = "???", .tooltip = "Betöltött Firmware verzió",
     .state = State::Hidden, .spoken = "Firmware verzió"},

    // Teszt
    {.name = "Label20", .kind = Kind::Label, .caption = "Szolid vezérlési teszt"},
    {.name = "Label30", .kind = Kind::Label, .caption = "Ne használja PC-Link módban!",
     .tooltip = "A teszt összeakadhat a PC-Link alatti kommunikációval!"},
    {.name = "Label16", .elements = {0, 1}, .kind = Kind::Label, .caption = "Z"},
    {.name = "Label16", .elements = {1, 1}, .kind = Kind::Label, .caption = "Y"},
    {.name = "Label16", .elements = {2, 1}, .kind = Kind::Label, .caption = "X"},
    {.name = "Mozg", .elements = {0, 1}, .kind = Kind::HoldButton, .tooltip = "X tengely",
     .state = State::Disabled, .spoken = "X tengely, fel nyíl", .hint = jogHint},
    {.name = "Mozg", .elements = {1, 1}, .kind = Kind::HoldButton, .tooltip = "X tengely",
     .state = State::Disabled, .spoken = "X tengely, le nyíl", .hint = jogHint},
    {.name = "Mozg", .elements = {2, 1}, .kind = Kind::HoldButton, .tooltip = "Y tengely",
     .state = State::Disabled, .spoken = "Y tengely, bal nyíl", .hint = jogHint},
    {.name = "Mozg", .elements = {3, 1}, .kind = Kind::HoldButton, .tooltip = "Y tengely",
     .state = State::Disabled, .spoken = "Y tengely, jobb nyíl", .hint = jogHint},
    {.name = "Mozg", .elements = {4, 1}, .kind = Kind::HoldButton, .tooltip = "Z tengely",
     .state = State::Disabled, .spoken = "Z tengely, fel nyíl", .hint = jogHint},
    {.name = "Mozg", .elements = {5, 1}, .kind = Kind::HoldButton, .tooltip = "Z tengely",
     .state = State::Disabled, .spoken = "Z tengely, le nyíl", .hint = jogHint},
    {.name = "Invert", .elements = {0, 1}, .kind = Kind::CheckBox, .caption = "X invertálása",
     .tooltip = "irány váltás", .mnemonic = 'X'},
    {.name = "Invert", .elements = {1, 1}, .kind = Kind::CheckBox, .caption = "Y invertálása",
     .tooltip = "irány váltás", .mnemonic = 'Y'},
    {.name = "Invert", .elements = {2, 1}, .kind = Kind::CheckBox, .caption = "Z invertálása",
     .tooltip = "irány váltás", .mnemonic = 'Z'},
    {.name = "SpindleGomb", .kind = Kind::ToggleButton, .caption = "Marómotor (relé)",
     .state = State::Disabled, .hint = "Az impulzusgenerátor üteme írja a relé bitjét."},
    {.name = "Label18", .kind = Kind::Label, .caption = "Sebesség:", .mnemonic = 'S',
     .buddy = "Seb"},
    {.name = "Seb", .kind = Kind::TextBox, .caption = "100", .spoken = "Sebesség, lépés/másodperc",
     .hint = "Átírása leállítja az impulzusgenerátort."},
    {.name = "Label17", .kind = Kind::Label, .caption = "Lépés/másodperc"},
    {.name = "Impulzus", .kind = Kind::ToggleButton, .caption = "Impulzus engedély",
     .tooltip = "Impulzus generátor ingedélyezése"},
    {.name = "Label19", .kind = Kind::Label, .caption = "LPT port:", .mnemonic = 'L',
     .buddy = "LPT"},
    {.name = "LPT", .kind = Kind::ListBox, .tooltip = "Nyomtató port címe", .spoken = "LPT port"},
    {.name = "Picture2", .elements = {0, 1}, .kind = Kind::Picture,
     .tooltip = "Kommunikáció módja PCB verziójának megfelelően!", .spoken = "Vezérlőpanel képe"},
    {.name = "PCBV", .kind = Kind::Label, .caption = "Verzió", .spoken = "Panel"},
    {.name = "Frame4", .kind = Kind::Frame, .caption = "Direkt bit beállítás:"},
    {.name = "Cim1", .kind = Kind::Label, .caption = "Cím", .spoken = "Adatregiszter címe"},
    {.name = "Bitcim", .elements = {0, 8}, .kind = Kind::CheckBox,
     .hint = "A Kiküldés gomb írja a portra."},
    {.name = "Cim2", .kind = Kind::Label, .caption = "Cím", .spoken = "Vezérlőregiszter címe"},
    {.name = "Bitcim", .elements = {8, 1}, .kind = Kind::CheckBox, .tooltip = "Relé",
     .hint = "A Kiküldés gomb írja a portra."},
    {.name = "Kuld", .kind = Kind::PushButton, .caption = "Kiküldés", .tooltip = "Bitek kiüldése"},
    {.name = "Torles", .kind = Kind::PushButton, .caption = "0 (low) Kiküldés",
     .tooltip = "Bitek nullázása"},

    // PC-Link
    {.name = "Label24", .kind = Kind::Label,
     .caption = "Motor egyirányú forgásához tartozó helyes fázis sorrend keresés és FET teszt."},
    {.name = "Label27", .kind = Kind::Label,
     .caption = "Használatához a vezérlőt állítsa át PC-Link üzemmódba!"},
    {.name = "Frame5", .kind = Kind::Frame, .caption = "X Motor Gerjesztés:"},
    {.name = "Label26", .elements = {0, 1}, .kind = Kind::Label, .caption = "Fázis (sorkapocs)"},
    {.name = "L", .elements = {0, 1}, .kind = Kind::OptionButton, .caption = "L1 (CON17)",
     .spoken = "X motor, L1 (CON17)", .hint = phaseHint},
    {.name = "L", .elements = {1, 1}, .kind = Kind::OptionButton, .caption = "+   (CON18)",
     .state = State::Disabled, .spoken = "X motor, + (CON18)", .hint = supplyHint},
    {.name = "L", .elements = {2, 1}, .kind = Kind::OptionButton, .caption = "L2 (CON19)",
     .spoken = "X motor, L2 (CON19)", .hint = phaseHint},
    {.name = "L", .elements = {3, 1}, .kind = Kind::OptionButton, .caption = "L3 (CON20)",
     .spoken = "X motor, L3 (CON20)", .hint = phaseHint},
    {.name = "L", .elements = {4, 1}, .kind = Kind::OptionButton, .caption = "+   (CON21)",
     .state = State::Disabled, .spoken = "X motor, + (CON21)", .hint = supplyHint},
    {.name = "L", .elements = {5, 1}, .kind = Kind::OptionButton, .caption = "L4 (CON22)",
     .spoken = "X motor, L4 (CON22)", .hint = phaseHint},
    {.name = "L", .elements = {6, 1}, .kind = Kind::OptionButton, .caption = " Ki",
     .state = State::Selected, .spoken = "X motor, Ki", .hint = offHint},
    {.name = "Leptet", .elements = {0, 1}, .kind = Kind::PushButton, .caption = "Léptetés",
     .spoken = "X motor, léptetés", .hint = "A motor következő fázisát kapcsolja be."},
    {.name = "Frame6", .kind = Kind::Frame, .caption = "Y Motor Gerjesztés:"},
    {.name = "Label26", .elements = {1, 1}, .kind = Kind::Label, .caption = "Fázis (sorkapocs)"},
    {.name = "L", .elements = {13, 1}, .kind = Kind::OptionButton, .caption = "L1 (CON23)",
     .spoken = "Y motor, L1 (CON23)", .hint = phaseHint},
    {.name = "L", .elements = {12, 1}, .kind = Kind::OptionButton, .caption = "+   (CON24)",
     .state = State::Disabled, .spoken = "Y motor, + (CON24)", .hint = supplyHint},
    {.name = "L", .elements = {11, 1}, .kind = Kind::OptionButton, .caption = "L2 (CON25)",
     .spoken = "Y motor, L2 (CON25)", .hint = phaseHint},
    {.name = "L", .elements = {10, 1}, .kind = Kind::OptionButton, .caption = "L3 (CON26)",
     .spoken = "Y motor, L3 (CON26)", .hint = phaseHint},
    {.name = "L", .elements = {9, 1}, .kind = Kind::OptionButton, .caption = "+   (CON27)",
     .state = State::Disabled, .spoken = "Y motor, + (CON27)", .hint = supplyHint},
    {.name = "L", .elements = {8, 1}, .kind = Kind::OptionButton, .caption = "L4 (CON28)",
     .spoken = "Y motor, L4 (CON28)", .hint = phaseHint},
    {.name = "L", .elements = {7, 1}, .kind = Kind::OptionButton, .caption = "Ki",
     .state = State::Selected, .spoken = "Y motor, Ki", .hint = offHint},
    {.name = "Leptet", .elements = {1, 1}, .kind = Kind::PushButton, .caption = "Léptetés",
     .spoken = "Y motor, léptetés", .hint = "A motor következő fázisát kapcsolja be."},
    {.name = "Frame7", .kind = Kind::Frame, .caption = "Z Motor Gerjesztés:"},
    {.name = "Label26", .elements = {2, 1}, .kind = Kind::Label, .caption = "Fázis (sorkapocs)"},
    {.name = "L", .elements = {20, 1}, .kind = Kind::OptionButton, .caption = "L1 (CON29)",
     .spoken = "Z motor, L1 (CON29)", .hint = phaseHint},
    {.name = "L", .elements = {19, 1}, .kind = Kind::OptionButton, .caption = "+   (CON30)",
     .state = State::Disabled, .spoken = "Z motor, + (CON30)", .hint = supplyHint},
    {.name = "L", .elements = {18, 1}, .kind = Kind::OptionButton, .caption = "L2 (CON31)",
     .spoken = "Z motor, L2 (CON31)", .hint = phaseHint},
    {.name = "L", .elements = {17, 1}, .kind = Kind::OptionButton, .caption = "L3 (CON32)",
     .spoken = "Z motor, L3 (CON32)", .hint = phaseHint},
    {.name = "L", .elements = {16, 1}, .kind = Kind::OptionButton, .caption = "+   (CON33)",
     .state = State::Disabled, .spoken = "Z motor, + (CON33)", .hint = supplyHint},
    {.name = "L", .elements = {15, 1}, .kind = Kind::OptionButton, .caption = "L4 (CON34)",
     .spoken = "Z motor, L4 (CON34)", .hint = phaseHint},
    {.name = "L", .elements = {14, 1}, .kind = Kind::OptionButton, .caption = "Ki",
     .state = State::Selected, .spoken = "Z motor, Ki", .hint = offHint},
    {.name = "Leptet", .elements = {2, 1}, .kind = Kind::PushButton, .caption = "Léptetés",
     .spoken = "Z motor, léptetés", .hint = "A motor következő fázisát kapcsolja be."},
    {.name = "Frame8", .kind = Kind::Frame, .caption = "Tápegység terhelési teszt:"},
    {.name = "Taptext", .kind = Kind::Instrument, .caption = "0%", .spoken = "Terhelés",
     .hint = "A beállított terhelés százalékban."},
    {.name = "Label28", .kind = Kind::BoxedLabel, .caption = "Terhelés"},
    {.name = "TapFel", .kind = Kind::PushButton, .caption = "Terhelés",
     .spoken = "Terhelés növelése", .hint = "Minden nyomása egy további fázist kapcsol be."},
    {.name = "TapStop", .kind = Kind::PushButton, .spoken = "Terhelés ki",
     .hint = "Mindhárom motort kikapcsolja."},
    {.name = "Label25", .elements = {1, 1}, .kind = Kind::Label, .caption = "200%"},
    {.name = "LEDsav", .kind = Kind::LedMeter, .spoken = "Terhelés fénysávja",
     .hint = "A terhelés 0 és 200% között."},
    {.name = "Label25", .elements = {0, 1}, .kind = Kind::Label, .caption = "0%"},
    {.name = "TulH", .kind = Kind::CheckBox, .caption = "Túlterhelés engedély 150%-ig!",
     .hint = "Nélküle a terhelés 100%-nál megáll."},
    {.name = "Teh200", .kind = Kind::CheckBox, .caption = "Túlterhelés engedély 200%-ig!",
     .hint = "Nélküle a terhelés 150%-nál megáll."},
    {.name = "Figy", .kind = Kind::Frame, .caption = "FIGYELEM !", .state = State::Disabled},
    {.name = "Figy2", .kind = Kind::Label,
     .caption = "Tápegység és huzalozás károsodási veszély! Fokozott figyelmet igényel!",
     .state = State::Disabled},

    // Infó
    {.name = "Label29", .elements = {0, 1}, .kind = Kind::Label, .caption = "Vilor CNC"},
    {.name = "Picture2", .elements = {1, 1}, .kind = Kind::Picture, .spoken = "Vezérlőpanel képe"},
    {.name = "Label29", .elements = {1, 1}, .kind = Kind::Label, .caption = "PWM Vezérlő"},
    {.name = "InfoT", .kind = Kind::TextArea, .spoken = "Információk",
     .hint = "Az Info.txt szövege."},
};
// clang-format on

inline constexpr TabDescription tabRow[] = {
    {"Motor Setup", 'M'}, {"Teszt", 'T'}, {"PC-Link", 'P'}, {"Infó", 'I'}};

using Mark = MenuDescription::Mark;
inline constexpr MenuDescription menus[] = {
    {1, "MF", "Fájl"},
    {2, "MFSetNyit", "Setup Megnyitás"},
    {2, "MFSetMent", "Setup Mentés"},
    {2, "MFv", "-"},
    {2, "MFkilepes", "Kilépés"},
    {1, "MB", "Beállítás"},
    {2, "MBKat", "Firmware Kategória", Mark::None, false},
    {3, "MBKVilor", "Vilor", Mark::On},
    {3, "MBKTarso", "Tarso", Mark::Off},
    {2, "MBT", "Tartóági frekvencia"},
    {3, "MBTallando", "Állandó", Mark::On},
    {3, "MBTValtozo", "Változó", Mark::Off},
    {2, "Mkom", "Kommunikáció módja"},
    {3, "Mpcb32", "PCB V3.2", Mark::Off},
    {3, "Mpcb40", "PCB V4.x", Mark::On},
    {1, "Msug", "Súgó"},
    {2, "Nev", "Névjegy"},
};

}  // namespace monitra::shell::window

namespace monitra::shell {

/// All of them, in the order of the window.
constexpr std::span<const ControlDescription> windowControls() {
  return window::controls;
}

/// Captions of the tabs, in the order of SSTab1, with their mnemonics.
constexpr std::span<const TabDescription> tabs() {
  return window::tabRow;
}

constexpr std::span<const MenuDescription> menuTree() {
  return window::menus;
}

}  // namespace monitra::shell
