#include "shell/main_toolbar.h"

#include "platform/forms/image_list.h"
#include "platform/forms/toolbar.h"

namespace MainToolbar {

namespace {

struct ButtonDefinition {
    const char *key;
    const char *toolTip;
    ToolbarButtonStyle style;
    const char *picture;
};

const ButtonDefinition Definitions[] = {
    {"Select", "Select Material(s)...", tbrDefault, "select"},
    {"Next", "Show Next Material", tbrDefault, "next"},
    {"Close", "Close Current Material", tbrDefault, "close"},
    {"Separator1", "", tbrSeparator, ""},
    {"Save", "Save Current Material To File...", tbrDefault, "save"},
    {"Print", "Preview / Print Current Material...", tbrDefault, "print"},
    {"Separator2", "", tbrSeparator, ""},
    {"Ref", "References", tbrButtonGroup, "references"},
    {"ChemComp", "Chemical Composition", tbrButtonGroup, "chemical-composition"},
    {"Mech", "Mechanical Properties...", tbrDropdown, "mechanical-properties"},
    {"ImpEnergy", "Impact Energy", tbrButtonGroup, "impact-energy"},
    {"Physical", "Physical Properties...", tbrDropdown, "physical-properties"},
    {"AddInfo", "Additional Information", tbrButtonGroup, "additional-information"},
    {"Design", "Design Values", tbrButtonGroup, "design-values"},
    {"Separator3", "", tbrSeparator, ""},
    {"Separator4", "", tbrSeparator, ""},
    {"Cascade", "Cascade", tbrButtonGroup, "cascade"},
    {"Horizontal", "Tile Horizontal", tbrButtonGroup, "tile-horizontal"},
    {"Separator5", "", tbrSeparator, ""},
    {"Separator6", "", tbrSeparator, ""},
    {"GenInfo", "General Information...", tbrDefault, "general-information"},
    {"Separator7", "", tbrSeparator, ""},
    {"Separator8", "", tbrSeparator, ""},
    {"Exit", "Exit", tbrDefault, "exit"},
};

} // namespace

void addButtons(Toolbar &toolbar) {
    for (const ButtonDefinition &definition : Definitions)
        toolbar.Add(definition.key, definition.style, definition.toolTip);

    ToolbarButton &mech = toolbar.Buttons("Mech");
    mech.AddMenu("MechProp", "Mechanical Properties At &Room Temperature");
    mech.AddMenu("Elevated", "Mechanical Properties At &Elevated Temperature");
    mech.AddMenu("CreepProp", "&Creep Properties");

    ToolbarButton &physical = toolbar.Buttons("Physical");
    physical.AddMenu("ModElast", "&Modulus Of Elasticity");
    physical.AddMenu("ThermExp", "Thermal &Expansion");
    physical.AddMenu("ThermCond",
                     "Thermal &Conductiviy"); // spelt unlike the menu: users find it by this text
    physical.AddMenu("SpecThermCap", "Specific &Thermal Capacity");
    physical.AddMenu("SpecElecRes", "Specific Electrical &Resistivity");
}

void addPictures(ImageList &images) {
    for (const ButtonDefinition &definition : Definitions)
        if (definition.style != tbrSeparator)
            images.Add(QStringLiteral(":/velmar/toolbar/%1.svg").arg(definition.picture));
}

void numberImages(Toolbar &toolbar) {
    int image = 1;
    for (int i = 1; i <= toolbar.Count(); ++i)
        if (toolbar.Buttons(i).Style() != tbrSeparator) toolbar.Buttons(i).setImage(image++);
}

void showMaterialButtons(Toolbar &toolbar, bool shown) {
    for (int i = 2; i <= toolbar.Count() - 2; ++i)
        toolbar.Buttons(i).setVisible(shown);
}

} // namespace MainToolbar
