// What a widget that draws itself is to a person who doesn't see it. Name and
// description are the widget's own. Threads: main thread.
#pragma once

#include <QAccessible>
#include <QString>

namespace vantrel::qt {

class Spoken {
  public:
    explicit Spoken(QAccessible::Role role) : role_(role) {}
    virtual ~Spoken() = default;

    QAccessible::Role role() const { return role_; }
    // Of a widget without an accessible name.
    virtual QString spokenText() const { return {}; }
    virtual QString spokenValue() const { return {}; }
    // Checked, expanded and the like.
    virtual void addState(QAccessible::State&) const {}

  private:
    QAccessible::Role role_;
};

// Makes Qt's accessibility ask every Spoken. Once, after QApplication.
void installSpokenWidgets();

}  // namespace vantrel::qt
