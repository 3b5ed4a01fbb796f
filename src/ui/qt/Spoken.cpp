#include "ui/qt/Spoken.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QCoreApplication>

#include "ui/qt/SpokenApplication.h"

namespace vantrel::qt {
namespace {

class AccessibleSpoken : public QAccessibleWidget {
  public:
    AccessibleSpoken(QWidget* widget, const Spoken& spoken)
        : QAccessibleWidget(widget, spoken.role()), spoken_(spoken) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return spoken_.spokenValue();
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? spoken_.spokenText() : own;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        spoken_.addState(state);
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button() != nullptr) names.prepend(isCheckable() ? toggleAction() : pressAction());
        if (box() != nullptr) names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (button() != nullptr && (name == pressAction() || name == toggleAction())) {
            button()->click();
        } else if (box() != nullptr && name == showMenuAction()) {
            box()->showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    QAbstractButton* button() const { return dynamic_cast<QAbstractButton*>(widget()); }
    QComboBox* box() const { return dynamic_cast<QComboBox*>(widget()); }
    bool isCheckable() const { return state().checkable; }

    const Spoken& spoken_;
};

class AccessibleSpokenSlider : public AccessibleSpoken, public QAccessibleValueInterface {
  public:
    AccessibleSpokenSlider(QAbstractSlider* slider, const Spoken& spoken)
        : AccessibleSpoken(slider, spoken), slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return AccessibleSpoken::interface_cast(type);
    }

    QVariant currentValue() const override { return slider_->value(); }
    void setCurrentValue(const QVariant& value) override { slider_->setValue(value.toInt()); }
    QVariant maximumValue() const override { return slider_->maximum(); }
    QVariant minimumValue() const override { return slider_->minimum(); }
    QVariant minimumStepSize() const override { return slider_->singleStep(); }

  private:
    QAbstractSlider* slider_;
};

// Asked once for each class of the object, from the most particular one.
QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    if (object == QCoreApplication::instance()) return new SpokenApplication;
    auto* const spoken = dynamic_cast<Spoken*>(object);
    auto* const widget = dynamic_cast<QWidget*>(object);
    if (spoken == nullptr || widget == nullptr) return nullptr;
    auto* const slider = dynamic_cast<QAbstractSlider*>(object);
    if (slider != nullptr) return new AccessibleSpokenSlider(slider, *spoken);
    return new AccessibleSpoken(widget, *spoken);
}

}  // namespace

void installSpokenWidgets() {
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

}  // namespace vantrel::qt
