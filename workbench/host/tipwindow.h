#pragma once

#include <QRasterWindow>

namespace workbench {
/// A tool tip above the windows of either toolkit, which the keyboard and the mouse pass by. It stands to the lower
/// right of the mouse, and on its other side at an edge of the screen.
class TipWindow : public QRasterWindow
{
    Q_OBJECT
public:
    TipWindow();

    /// Text of several lines, shown as it is, for a cursor in Qt's coordinates.
    void showText(const QString& text, QPoint cursor);
    const QString& text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont font() const;

    QString m_text;
};
} // namespace workbench
