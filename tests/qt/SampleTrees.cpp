#include "qt/SampleTrees.h"

#include "ui/Nodes.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node card(std::string key, std::vector<Node> children) {
    Node node{.element = Stack{.spacing = 10, .background = Background::card, .cornerRadius = 10},
              .children = std::move(children)};
    return std::move(node).padding(12).fillWidth().key(std::move(key));
}

Node header(const std::string& title, const std::string& subtitle, Symbol symbol,
            std::vector<Node> accessory) {
    std::vector<Node> nodes{
        image(std::move(symbol), Font::title).width(24),
        column(1, {text(title, Font::title), text(subtitle, Font::caption, Tone::secondary)}), spacer()};
    for (Node& node : accessory) nodes.push_back(std::move(node));
    return row(8, std::move(nodes));
}

Node slider(std::string symbol, std::string name, double value, std::string label) {
    Node control{.element = Slider{.value = value, .maximum = 100, .step = 1, .wheelStep = 5}};
    return row(8, {image(std::move(symbol)).width(18),
                   std::move(control).named(name).valued(label).withHelp(name).key(name),
                   text(label, Font::callout, Tone::secondary).width(34)});
}

Node choice(std::string title, std::vector<std::string> options, std::optional<std::size_t> selected) {
    Picker picker;
    picker.title = std::move(title);
    picker.options = std::move(options);
    picker.selected = selected;
    return {.element = std::move(picker)};
}

Node modePicker(std::string symbol) {
    Node node{.element =
                  Picker{.title = "Control mode",
                         .symbol = std::move(symbol),
                         .options = {"Automatic", "DDC", "Software"},
                         .selected = 0,
                         .note = "Uses DDC when the monitor answers, and the picture when it doesn't."}};
    return std::move(node).named("Control mode: Automatic").key("mode");
}

Node outputSwitch() {
    Node node{.element = Switch{.title = "", .isOn = true}};
    return std::move(node).named("Output").withHelp("The Mac's video output to this monitor").key("output");
}

Node tile(std::string title, std::string symbol, bool isSelected, std::string badge = {}) {
    Node node{.element = Tile{.title = title,
                              .symbol = std::move(symbol),
                              .isSelected = isSelected,
                              .badge = std::move(badge),
                              .badgeHelp = "The Mac is connected to this input",
                              .padding = 6,
                              .cornerRadius = 7}};
    return std::move(node).named(title).key(title);
}

Node inputs() {
    return {.element = Grid{.columns = 2, .columnSpacing = 6, .rowSpacing = 6},
            .children = {tile("DisplayPort 1", "rectangle.connected.to.line.below", false),
                         tile("HDMI 1", "cable.connector.horizontal", true),
                         tile("Windows PC under the desk", "cable.connector.horizontal", false),
                         tile("USB-C", "arrow.right.circle", false, "laptopcomputer"),
                         tile("VGA 1", "cable.connector", false)}};
}

Node featureRow(std::string name, Node control) {
    return row(8, {text(std::move(name)), spacer(), std::move(control)});
}

Node moreSettings() {
    Node preset = choice("", {"sRGB", "5000 K", "6500 K", "9300 K", "User 1"}, 2);
    Node osd = choice("", {"English", "Deutsch", "Português do Brasil (muito longo)"}, {});
    return {.element = Disclosure{.title = "More Monitor Settings", .isOpen = true},
            .children = {
                column(12, {text("Color", Font::callout, Tone::secondary),
                            featureRow("Color preset", std::move(preset).named("Color preset")),
                            column(2, {text("Video gain: red", Font::callout),
                                       slider("slider.horizontal.3", "Video gain: red", 53, "53")}),
                            featureRow("Restore factory defaults", button("Run")),
                            featureRow("Language of the on-screen menu", std::move(osd).named("Language")),
                            featureRow("Usage time", text("4,312 h", Font::body, Tone::secondary))})
                    .padding(6)
                    .fillWidth()}};
}

Node connectedCard() {
    Node volume = slider("speaker.wave.2.fill", "Volume", 20, "20%");
    volume.children.push_back(symbolButton("speaker.slash.fill", "Unmute"));
    return card("connected", {header("Halden Wide 27UP850 with a very long name", "Current input: HDMI 1",
                                     "display", {modePicker("dial.medium"), outputSwitch()}),
                              slider("sun.max.fill", "Brightness", 72, "72%"),
                              slider("circle.lefthalf.filled", "Contrast", 100, "100%"), std::move(volume),
                              inputs(), moreSettings()});
}

Node confirmingCard() {
    Node panel{
        .element = Stack{.spacing = 10, .background = Background::warning, .cornerRadius = 8},
        .children = {wrappedText("The Mac stops sending a picture to Norvik N2720 and its windows move to "
                                 "the other displays. First, the monitor switches to HDMI 1. To bring it "
                                 "back, use Turn On here in the menu.",
                                 Font::callout),
                     row(8, {spacer(), button("Cancel", Button::Style::bordered, Font::callout),
                             button("Turn Output Off", Button::Style::prominent, Font::callout)})}};
    return card("confirming",
                {header("Norvik N2720", "DDC/CI", "display", {modePicker("dial.medium"), outputSwitch()}),
                 std::move(panel).padding(10).fillWidth()});
}

Node unavailableCard() {
    return card(
        "unavailable",
        {header("TV in the corner", "No DDC response", "display",
                {modePicker("dial.medium"), outputSwitch()}),
         wrappedText("The monitor did not answer DDC/CI on this connection. Use Software mode or a USB-C → "
                     "DisplayPort cable.",
                     Font::caption, Tone::secondary),
         button("Try Again", Button::Style::bordered, Font::callout).enabled(false)});
}

Node offCard() {
    return card("off", {header("Arcora P3220", "Mac output off", "display.trianglebadge.exclamationmark",
                               {button("Turn On", Button::Style::prominent, Font::callout)})})
        .withContextMenu({"Forget This Monitor"}, [](std::size_t) {});
}

Node loadingCard() {
    Node progress{.element = Progress{}};
    return card("loading",
                {header("Tessera T2785", "DDC/CI", "display", {modePicker("wand.and.rays"), outputSwitch()}),
                 row(6, {std::move(progress),
                         text("Reading the monitor over DDC…", Font::callout, Tone::secondary)})});
}

Node builtInCard() {
    return card("built-in", {header("Built-in Display", "MacBook", "laptopcomputer", {}),
                             slider("sun.max.fill", "Built-in brightness", 48, "48%")});
}

Node inputRow(std::string code, bool isShown, std::string nickname, bool isOwn) {
    Node shown{.element = Switch{.title = "", .isOn = isShown}};
    Node field{.element =
                   TextField{.text = std::move(nickname), .placeholder = "Nickname (e.g. Windows PC)"}};
    std::vector<Node> nodes{std::move(shown).named("Show " + code).withHelp("Show in the menu"),
                            text(code).width(110), std::move(field).named("Nickname of " + code)};
    if (isOwn) nodes.push_back(symbolButton("minus.circle", "Remove this input"));
    return row(8, std::move(nodes)).key(code);
}

Node picker(std::string title, std::vector<std::string> options, std::size_t selected) {
    Node node = choice(title, std::move(options), selected);
    return std::move(node).named(title).key(title);
}

}  // namespace

Node samplePopover() {
    Node cards{.element = Scroll{.maximumHeight = 1500},
               .children = {column(10, {offCard(), connectedCard(), confirmingCard(), unavailableCard(),
                                        loadingCard(), builtInCard()})
                                .fillWidth()}};
    return column(
               10,
               {row(8,
                    {image(applicationIcon).width(22).height(22), text("Vantrel", Font::headline), spacer()}),
                row(6,
                    {image("exclamationmark.triangle.fill", Font::caption, Tone::warning),
                     wrappedText("Norvik N2720 could not be switched to HDMI 1: the monitor did not answer.",
                                 Font::caption, Tone::warning)}),
                std::move(cards), divider(),
                row(8, {button("Settings", Button::Style::borderless, Font::callout), spacer(),
                        button("Quit", Button::Style::borderless, Font::callout)})})
        .padding(12)
        .width(340)
        .key("popover");
}

Node sampleForm() {
    Node login{.element = Switch{.title = "Open at Login", .isOn = true}};
    Node general{.element = Section{.title = "General"},
                 .children = {std::move(login).named("Open at Login"),
                              wrappedText("The system does not allow this program to open at login.",
                                          Font::callout, Tone::warning)}};
    Node raw{.element = Text{
                 .text = "(prot(monitor)type(lcd)model(27UP850)cmds(01 02 03 07 0C E3 F3)vcp(02 04 05 08 10 "
                         "12 14(05 08 0B) 16 18 1A 52 60(0F 10 11 12) 62 8D AC AE B2 B6 C0 C6 C8 C9 D6(01 "
                         "04) DF)mccs_ver(2.1)mswhql(1))",
                 .font = Font::callout,
                 .wraps = true,
                 .isSelectable = true}};
    Node capabilities{.element = Disclosure{.title = "Capabilities string (MCCS)", .isOpen = true},
                      .children = {std::move(raw).fillWidth().key("raw")}};
    Node add{.element = Menu{.title = "Add Input", .options = {"VGA 1 (0x01)", "DVI 1 (0x03)"}}};
    Node display{
        .element = Section{.title = "Halden Wide 27UP850"},
        .children = {picker("Control mode", {"Automatic", "DDC", "Software"}, 0),
                     wrappedText("Some monitors report the wrong inputs. Adjust the list to match your "
                                 "monitor's physical inputs.",
                                 Font::callout, Tone::secondary),
                     inputRow("0x0F", true, "", false), inputRow("0x11", false, "Windows PC", false),
                     inputRow("0x1B", true, "", true),
                     row(8, {std::move(add).named("Add Input"), spacer(), button("Restore Detected Inputs")}),
                     picker("When turning the Mac output off, switch to", {"Don't switch", "HDMI 1"}, 0),
                     picker("Input the Mac is connected to", {"Not sure", "USB-C (front of the monitor)"}, 1),
                     std::move(capabilities), button("Reread Monitor Capabilities")}};
    return Node{.element = Form{},
                .children = {std::move(general).key("general"), std::move(display).key("display")}}
        .width(460)
        .heightBetween(360, 1200)
        .key("form");
}

}  // namespace vantrel::qt
