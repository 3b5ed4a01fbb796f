#include "app/Pictures.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>

#include "app/ExitStatus.h"
#include "app/PictureStage.h"
#include "model/ControlMode.h"
#include "platform/EnglishLocalizer.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::app {

using namespace std::chrono_literals;
using Subject = PictureStage::Subject;

namespace {

struct Scene {
    std::string_view name;
    // Of the desks that come with the program; empty for one without displays.
    std::string_view desk;
    Subject subject;
    void (*prepare)(PictureStage&);
};

void nothing(PictureStage&) {}

void askToTurnOff(PictureStage& stage) {
    const auto display = stage.manager().externals().at(0);
    display->inputSettings().setFocusInput(display->visibleInputs().at(1));
    stage.toggle("Video output to " + display->name(), false);
}

void turnOff(PictureStage& stage) {
    const auto display = stage.manager().externals().at(0);
    stage.manager().start(stage.manager().disableOutput(display, std::nullopt));
    stage.wait(10s);
}

void failToTurnOn(PictureStage& stage) {
    turnOff(stage);
    stage.simulated().refuse(simulated::Refusal::complete);
    stage.press("Turn On");
    stage.wait(10s);
}

void comeBack(PictureStage& stage) {
    const auto display = stage.manager().externals().at(0);
    stage.manager().start(stage.manager().returnToMac(display));
    stage.wait(1200ms);
}

void showMore(PictureStage& stage) {
    stage.toggle("More Monitor Settings", true);
    stage.wait(1s);
}

void dim(PictureStage& stage) {
    for (const auto& display : stage.manager().externals())
        display->setControlMode(model::ControlMode::software);
    stage.wait(1s);
}

void edit(PictureStage& stage) {
    const auto display = stage.manager().externals().at(0);
    display->addInput(0x1B);
    display->inputSettings().setAliases({{display->inputs().at(1), "Windows PC"}});
    stage.simulated().refuseLoginItem("Vantrel is not allowed to open at login.");
    stage.toggle("Open at Login", true);
}

constexpr std::array scenes{
    Scene{"popover", "default", Subject::popover, nothing},
    Scene{"confirmation", "default", Subject::popover, askToTurnOff},
    Scene{"output-off", "default", Subject::popover, turnOff},
    Scene{"error", "default", Subject::popover, failToTurnOn},
    Scene{"returning", "inputs", Subject::popover, comeBack},
    Scene{"more-settings", "default", Subject::popover, showMore},
    Scene{"software", "twins", Subject::popover, dim},
    Scene{"sixteen-monitors", "large", Subject::popover, nothing},
    Scene{"hostile", "hostile", Subject::popover, nothing},
    Scene{"no-monitor", "", Subject::popover, nothing},
    Scene{"settings", "default", Subject::settings, edit},
    Scene{"settings-no-monitor", "", Subject::settings, nothing},
};

simulated::Desk deskOf(const Scene& scene) {
    if (scene.desk.empty()) return {};
    return std::get<simulated::Desk>(simulated::ShippedDesks::read(std::string(scene.desk)));
}

}  // namespace

int Pictures::draw(const std::string& folder, std::ostream& output, std::ostream& errors) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        errors << "vantrel: can't make the folder " << folder << ": " << error.message() << "\n";
        return ExitStatus::mistake;
    }
    platform::EnglishLocalizer english;
    for (const Scene& scene : scenes) {
        for (const bool isDark : {false, true}) {
            qt::PictureView::use(isDark ? qt::Scheme::dark : qt::Scheme::light);
            PictureStage stage(deskOf(scene), scene.subject, english);
            scene.prepare(stage);
            for (const int ratio : {1, 2}) {
                const std::string path = folder + "/" + std::string(scene.name) +
                                         (isDark ? "-dark" : "-light") + (ratio == 2 ? "@2x" : "") + ".png";
                if (!stage.save(path, ratio)) {
                    errors << "vantrel: can't write " << path << "\n";
                    return ExitStatus::mistake;
                }
                output << path << "\n";
            }
        }
    }
    return ExitStatus::success;
}

}  // namespace vantrel::app
