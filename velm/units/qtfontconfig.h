#pragma once

#include "velm/velm_export.h"

#include <QFont>
#include <QObject>
#include <QQuickWindow>

#include <memory>

class QJSEngine;
class QQmlEngine;

namespace velm {
/// The QML singleton that tells pages how to render text on the current screen.
class VELM_EXPORT QtFontConfig : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QFont::HintingPreference defaultHintingPreference READ defaultHintingPreference CONSTANT)
    Q_PROPERTY(QQuickWindow::TextRenderType defaultRenderType READ defaultRenderType CONSTANT)
public:
    ~QtFontConfig() override;

    /// The singleton, created at first use.
    static QtFontConfig* instance();
    /// The QML factory: the singleton, marked as the program's own. Both arguments are ignored.
    static QtFontConfig* create(QQmlEngine* qmlEngine, QJSEngine* jsEngine);
    static void destroyInstance();

    QFont::HintingPreference defaultHintingPreference() const;
    /// Native rendering on a screen of a whole pixel ratio, otherwise Qt's; worked out anew at each read.
    QQuickWindow::TextRenderType defaultRenderType() const;

private:
    QtFontConfig();
    static void setupInstance();

    static std::unique_ptr<QtFontConfig> m_pInstance;
};
} // namespace velm
