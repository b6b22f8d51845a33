// A form's place on the screen, kept in a section named after the form, and the
// colour names of the notes.
#include <limits>

#include "config/clsConfigDiary.h"
#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

long toLong(double value) {
    value = RoundHalfEven(value);
    if (value < static_cast<double>(std::numeric_limits<long>::min())) return std::numeric_limits<long>::min();
    if (value > static_cast<double>(std::numeric_limits<long>::max())) return std::numeric_limits<long>::max();
    return static_cast<long>(value);
}

long quarterOf(long twips) {
    return toLong(static_cast<double>(twips) / 4);
}

long threeQuartersOf(long twips) {
    return toLong(static_cast<double>(twips) / 4 * 3);
}

struct NamedColour {
    const char* name;
    int32_t dark;
    int32_t pale;
};

// Colours as 0xBBGGRR.  The dark one is a text colour, so white is black there.
constexpr NamedColour kColours[] = {
    {"WHITE", 0x000000, 0xFFFFFF},  {"RED", 0x000080, 0xC0C0FF},   {"ORANGE", 0x0040C0, 0xC0E0FF},
    {"YELLOW", 0x008080, 0xC0FFFF}, {"GREEN", 0x008000, 0xC0FFC0}, {"BLUE", 0xC00000, 0xFFFFC0},
    {"PURPLE", 0x800080, 0xFFC0C0}, {"PINK", 0xFF00FF, 0xFFC0FF},
};

}  // namespace

void clsConfigDiary::GetFormSettings(Form& form, const std::string& iniFile, bool useScreenSize) {
    const ScreenSize screen = platform().Screen();
    const std::string& section = form.Name();
    auto read = [&](const char* key) { return toLong(Val(readIni(section, key, iniFile))); };

    // A size that was never stored (or makes no sense) falls to 3/4 of the screen or
    // to the form's own size.
    long height = read("Height");
    if (height <= 0) height = useScreenSize ? threeQuartersOf(screen.heightTwips) : form.Height;
    long width = read("Width");
    if (width <= 0) width = useScreenSize ? threeQuartersOf(screen.widthTwips) : form.Width;
    long left = read("Left");
    if (left < 0) left = 0;
    long top = read("Top");
    if (top < 0) top = 0;

    // Only a window wholly off the screen, or larger than it, is moved.
    if (left > screen.widthTwips) left = quarterOf(screen.widthTwips);
    if (top > screen.heightTwips) top = quarterOf(screen.heightTwips);
    if (height > screen.heightTwips) height = threeQuartersOf(screen.heightTwips);
    if (width > screen.widthTwips) width = threeQuartersOf(screen.widthTwips);

    form.Left = left;
    form.Height = height;
    form.Width = width;
    form.Top = top;
}

void clsConfigDiary::SaveFormSettings(const Form& form, const std::string& iniFile) {
    const std::string& section = form.Name();
    // A maximised or minimised window leaves its last normal place in the file.
    if (form.WindowState == 0) {
        writeKey(section, "Height", Trim(CStr(form.Height)), iniFile);
        writeKey(section, "Width", Trim(CStr(form.Width)), iniFile);
        writeKey(section, "Left", Trim(CStr(form.Left)), iniFile);
        writeKey(section, "Top", Trim(CStr(form.Top)), iniFile);
    }
    writeKey(section, "WindowState", CStr(form.WindowState), iniFile);
}

void clsConfigDiary::BuildColorList(ComboBox& combo) {
    combo.Clear();
    for (const char* name : {"White", "Red", "Orange", "Yellow", "Green", "Blue", "Purple", "Pink"})
        combo.AddItem(name + Space(13 - Len(name)));
}

int32_t clsConfigDiary::GetColorFromString(std::string& name, bool pale) {
    name = UCase(Trim(name));
    for (const NamedColour& colour : kColours)
        if (name == colour.name) return pale ? colour.pale : colour.dark;
    return 0;
}

}  // namespace orbidex
