#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace velmqml {
/// Draws an outline as a line in one colour, in the middle of the item and as large as fits. In place of a Shape, whose
/// software renderer (seen in Qt 6.4) takes a new scene graph node for the old one when it comes to lie at the same
/// address, and then reads past the end of its empty list of paths: a popup shown again could crash.
class MarkDrawing : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// SVG path data in a square of 16; empty draws nothing.
    Q_PROPERTY(QString outline MEMBER m_outline NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    /// In units of the square.
    Q_PROPERTY(qreal lineWidth MEMBER m_lineWidth NOTIFY changed FINAL)
public:
    explicit MarkDrawing(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QString m_outline;
    QColor m_color = Qt::black;
    qreal m_lineWidth = 1;
};
} // namespace velmqml
