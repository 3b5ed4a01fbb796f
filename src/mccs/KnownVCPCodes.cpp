#include <initializer_list>
#include <string>

#include "mccs/MCCS.h"
#include "mccs/VCPCatalog.h"

namespace vantrel::mccs {
namespace {

using enum VCPInfo::Kind;
using enum VCPInfo::Group;
using ValueNames = std::map<std::uint16_t, text::Text>;

text::Text verbatim(std::string text) { return text::Text::verbatim(std::move(text)); }
text::Text translated(std::string key) { return text::Text::translated(std::move(key)); }

ValueNames colorPresets() {
    return {
        {1, verbatim("sRGB")},      {2, translated("Native")},  {3, verbatim("4000 K")},
        {4, verbatim("5000 K")},    {5, verbatim("6500 K")},    {6, verbatim("7500 K")},
        {7, verbatim("8200 K")},    {8, verbatim("9300 K")},    {9, verbatim("10000 K")},
        {10, verbatim("11500 K")},  {11, translated("User 1")}, {12, translated("User 2")},
        {13, translated("User 3")},
    };
}

// The value is the gamma times 100, less 100.
ValueNames gammas() {
    return {
        {80, verbatim("1.8")},  {100, verbatim("2.0")}, {120, verbatim("2.2")},
        {140, verbatim("2.4")}, {160, verbatim("2.6")},
    };
}

ValueNames scalings() {
    return {
        {1, translated("No scaling")},
        {2, translated("Full screen")},
        {3, translated("Max vertical")},
        {4, translated("Max horizontal")},
        {5, translated("Max vertical, no distortion")},
        {6, translated("Max horizontal, no distortion")},
        {7, verbatim("Linear 4:3")},
        {8, translated("Non-linear")},
        {9, verbatim("Linear widescreen")},
    };
}

ValueNames muteStates() { return {{1, translated("Muted")}, {2, translated("Sound on")}}; }

ValueNames orientations() {
    return {
        {1, verbatim("0°")},   {2, verbatim("90°")},     {3, verbatim("180°")},
        {4, verbatim("270°")}, {255, translated("N/A")},
    };
}

ValueNames menuStates() { return {{1, translated("Disabled")}, {2, translated("Enabled")}}; }

ValueNames languages() {
    return {
        {1, translated("Chinese (Trad.)")},
        {2, translated("English")},
        {3, translated("French")},
        {4, translated("German")},
        {5, translated("Italian")},
        {6, translated("Japanese")},
        {7, translated("Korean")},
        {8, translated("Portuguese (PT)")},
        {9, translated("Russian")},
        {10, translated("Spanish")},
        {11, translated("Swedish")},
        {12, translated("Turkish")},
        {13, translated("Chinese (Simpl.)")},
        {14, translated("Portuguese (BR)")},
        {15, translated("Arabic")},
        {16, translated("Bulgarian")},
        {17, translated("Croatian")},
        {18, translated("Czech")},
        {19, translated("Danish")},
        {20, translated("Dutch")},
        {21, translated("Estonian")},
        {22, translated("Finnish")},
        {23, translated("Greek")},
        {24, translated("Hebrew")},
        {25, verbatim("Hindi")},
        {26, translated("Hungarian")},
        {27, translated("Latvian")},
        {28, translated("Lithuanian")},
        {29, translated("Norwegian")},
        {30, translated("Polish")},
        {31, translated("Romanian")},
        {32, translated("Serbian")},
        {33, translated("Slovak")},
        {34, translated("Slovenian")},
        {35, translated("Thai")},
        {36, translated("Ukrainian")},
        {37, translated("Vietnamese")},
    };
}

ValueNames powerStates() {
    return {
        {1, translated("On")},  {2, verbatim("Standby")},        {3, translated("Suspended")},
        {4, translated("Off")}, {5, translated("Off (button)")},
    };
}

ValueNames pictureModes() {
    return {
        {0, translated("Standard")},
        {1, translated("Productivity")},
        {2, translated("Mixed")},
        {3, translated("Movie")},
        {4, translated("User")},
        {5, translated("Games")},
        {6, translated("Sports")},
        {7, translated("Professional")},
        {8, translated("Standard (intermediate)")},
        {9, translated("Standard (long)")},
        {10, verbatim("Demo")},
        {240, translated("Dynamic contrast")},
    };
}

}  // namespace

std::vector<VCPCatalogEntry> knownVCPCodes() {
    return {
        {0x04, {translated("Restore factory defaults"), action, system}},
        {0x05, {translated("Restore brightness and contrast"), action, system}},
        {0x06, {translated("Restore geometry"), action, system}},
        {0x08, {translated("Restore factory colors"), action, system}},
        {0x1E, {verbatim("Auto setup"), action, system}},
        {0x1F, {translated("Auto color"), action, system}},

        {0x10, {translated("Brightness"), continuous, main}},
        {0x12, {translated("Contrast"), continuous, main}},
        {MCCS::inputSource, {translated("Input"), choice, main, MCCS::inputNames()}},

        {0x0C, {translated("Color temperature"), continuous, color}},
        {0x16, {translated("Red gain"), continuous, color}},
        {0x18, {translated("Green gain"), continuous, color}},
        {0x1A, {translated("Blue gain"), continuous, color}},
        {0x59, {translated("Red saturation"), continuous, color}},
        {0x5A, {translated("Yellow saturation"), continuous, color}},
        {0x5B, {translated("Green saturation"), continuous, color}},
        {0x5C, {translated("Cyan saturation"), continuous, color}},
        {0x5D, {translated("Blue saturation"), continuous, color}},
        {0x5E, {translated("Magenta saturation"), continuous, color}},
        {0x6C, {translated("Red black level"), continuous, color}},
        {0x6E, {translated("Green black level"), continuous, color}},
        {0x70, {translated("Blue black level"), continuous, color}},
        {0x8A, {translated("Saturation"), continuous, color}},
        {0x90, {translated("Hue"), continuous, color}},
        {0x9B, {translated("Red hue"), continuous, color}},
        {0x9C, {translated("Yellow hue"), continuous, color}},
        {0x9D, {translated("Green hue"), continuous, color}},
        {0x9E, {translated("Cyan hue"), continuous, color}},
        {0x9F, {translated("Blue hue"), continuous, color}},
        {0xA0, {translated("Magenta hue"), continuous, color}},
        {0x14, {translated("Color preset"), choice, color, colorPresets()}},

        {0x20, {translated("Horizontal position"), continuous, picture}},
        {0x30, {translated("Vertical position"), continuous, picture}},
        {0x3E, {translated("Clock phase"), continuous, picture}},
        {0x87, {translated("Sharpness"), continuous, picture}},
        {0x72, {translated("Gamma"), choice, picture, gammas()}},
        {0x86, {translated("Scaling"), choice, picture, scalings()}},
        {0xDC, {translated("Picture mode"), choice, picture, pictureModes()}},

        {0x62, {verbatim("Volume"), continuous, audio}},
        {0x8F, {translated("Treble"), continuous, audio}},
        {0x91, {translated("Bass"), continuous, audio}},
        {0x93, {translated("Balance"), continuous, audio}},
        {0x8D, {translated("Mute"), choice, audio, muteStates()}},

        {0xAA, {translated("Orientation"), readOnly, info, orientations()}},
        {0xAE, {translated("Vertical frequency"), readOnly, info}},
        {0xC0, {translated("Usage hours"), readOnly, info}},
        {0xC9, {verbatim("Firmware"), readOnly, info}},

        {0xCA, {translated("On-screen menu (OSD)"), choice, system, menuStates()}},
        {0xCC, {translated("OSD language"), choice, system, languages()}},
        {0xD6, {translated("Power"), choice, system, powerStates()}},
    };
}

}  // namespace vantrel::mccs
