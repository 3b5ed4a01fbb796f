#include "ui/qt/QtStatusItem.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QScreen>
#include <QSystemTrayIcon>

#include "ui/qt/DrawingPicture.h"
#include "ui/qt/EmbeddingTray.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

using namespace std::chrono_literals;

// Of the StatusNotifierItem protocol, which most trays speak.
const char* const watcherName = "org.kde.StatusNotifierWatcher";
// Qt finds out once, with the first icon, which protocol the desktop's tray speaks:
// so there is none before a tray is there. Only the one kind says that it has come.
constexpr auto nextLook = 1s;
// A click that closes the panel by taking its focus reaches the icon after that.
constexpr auto sameClick = 250ms;

bool hasWatcher() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(watcherName);
}

}  // namespace

class QtStatusItem::Tray : public QObject {
  public:
    explicit Tray(runtime::MainLoop& loop) : loop_(loop) {
        qApp->installEventFilter(this);
        if (!QDBusConnection::sessionBus().isConnected()) {
            appear();
            return;
        }
        watcher_ = std::make_unique<QDBusServiceWatcher>(watcherName, QDBusConnection::sessionBus(),
                                                         QDBusServiceWatcher::WatchForRegistration);
        QObject::connect(watcher_.get(), &QDBusServiceWatcher::serviceRegistered, this, [this] { appear(); });
        look();
    }
    ~Tray() override {
        if (looking_) loop_.cancel(*looking_);
        if (ignoring_) loop_.cancel(*ignoring_);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) showImage();
        return false;
    }

    void setImage(const ui::Drawing& image) {
        image_ = image;
        showImage();
    }
    void setToolTip(const std::string& text) {
        toolTip_ = QString::fromStdString(text);
        if (icon_) icon_->setToolTip(toolTip_);
    }
    bool isHosted() const { return icon_ && QSystemTrayIcon::isSystemTrayAvailable(); }
    QRect geometry() const { return icon_ ? icon_->geometry() : QRect(); }

    void ignoreClicks() {
        if (ignoring_) loop_.cancel(*ignoring_);
        ignoring_ = loop_.after(sameClick, [this] { ignoring_.reset(); });
    }
    void click() {
        if (!ignoring_ && clicked) clicked();
    }

    std::function<void()> clicked;

  private:
    void look() {
        looking_.reset();
        if (hasWatcher() || EmbeddingTray::exists()) {
            appear();
        } else {
            looking_ = loop_.after(nextLook, [this] { look(); });
        }
    }
    // From then on Qt keeps it in every tray of that kind that comes.
    void appear() {
        if (icon_) return;
        if (looking_) loop_.cancel(*looking_);
        looking_.reset();
        icon_ = std::make_unique<QSystemTrayIcon>();
        QObject::connect(icon_.get(), &QSystemTrayIcon::activated, this,
                         [this](QSystemTrayIcon::ActivationReason reason) {
                             // There is no menu for the other button.
                             if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
                                 click();
                         });
        icon_->setToolTip(toolTip_);
        showImage();
        icon_->show();
    }
    void showImage() {
        if (!icon_) return;
        const QColor ink = trayInk(QApplication::palette(), qgetenv("XDG_CURRENT_DESKTOP").toStdString());
        icon_->setIcon(drawingIcon(image_, ink));
    }

    runtime::MainLoop& loop_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    std::optional<runtime::MainLoop::TimerID> looking_;
    std::optional<runtime::MainLoop::TimerID> ignoring_;
    ui::Drawing image_;
    QString toolTip_;
};

QtStatusItem::QtStatusItem(runtime::MainLoop& loop) : tray_(std::make_unique<Tray>(loop)) {}
QtStatusItem::~QtStatusItem() = default;

void QtStatusItem::setImage(const ui::Drawing& image) { tray_->setImage(image); }
void QtStatusItem::setToolTip(const std::string& text) { tray_->setToolTip(text); }
void QtStatusItem::onClick(std::function<void()> action) { tray_->clicked = std::move(action); }
bool QtStatusItem::isHosted() const { return tray_->isHosted(); }
QRect QtStatusItem::geometry() const { return tray_->geometry(); }
void QtStatusItem::ignoreClicksForAMoment() { tray_->ignoreClicks(); }
void QtStatusItem::click() { tray_->click(); }

std::optional<double> QtStatusItem::screenHeight() const {
    const QRect place = geometry();
    const QScreen* const screen = place.isEmpty() ? nullptr : QApplication::screenAt(place.center());
    if (screen == nullptr) return std::nullopt;
    return Look::current().points(0, screen->availableGeometry().height()).height;
}

QColor trayInk(const QPalette& palette, const std::string& desktop) {
    const auto names = QString::fromStdString(desktop).split(':');
    const bool isAlwaysDark = names.contains("GNOME") || names.contains("Unity");
    const bool isDark = isAlwaysDark || Look(palette, QApplication::font()).isDark;
    return isDark ? QColor(0xf0, 0xf0, 0xf0) : QColor(0x2a, 0x2a, 0x2a);
}

}  // namespace vantrel::qt
