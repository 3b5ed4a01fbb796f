// A text in one font: how wide and high it is, and how it is drawn. Over several
// lines it breaks between words, within one only when the word is too long.
// Threads: main thread.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

namespace vantrel::qt {

class TextLines {
  public:
    enum class Wrapping { none, wraps };

    TextLines() = default;
    TextLines(QString text, const QFont& font, Wrapping wrapping);

    const QString& text() const { return text_; }
    const QFont& font() const { return font_; }
    // All of it in one line.
    int naturalWidth() const;
    // Enough to show something.
    int minimumWidth() const;
    int height(int width) const;
    // A single line that doesn't fit is drawn a little narrower, and if that is not
    // enough cut at its end.
    bool isCut(int width) const;
    void paint(QPainter& painter, const QRect& rectangle, Qt::Alignment alignment, const QColor& color) const;

  private:
    QFont fitting(int width) const;

    QString text_;
    QFont font_;
    Wrapping wrapping_ = Wrapping::none;
};

}  // namespace vantrel::qt
