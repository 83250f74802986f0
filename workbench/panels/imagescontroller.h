#pragma once

#include "od/odapdocmanager.h"
#include "ut/themecolors.h"

#include <QImage>
#include <QObject>
#include <QStringList>

namespace workbench {
/// What the pages of images and of tool icons talk to: one picture, of the drawing, of a test card, of a tool icon or
/// from a file, and all sizes of the icons. The picture is made when the page asks for it, so that a page that nobody
/// sees costs nothing.
class ImagesController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QStringList sources READ sources NOTIFY sourcesChanged)
    Q_PROPERTY(int source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool outdated READ isOutdated NOTIFY outdatedChanged)
    Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged)
    Q_PROPERTY(QString sizeText READ sizeText NOTIFY pictureChanged)
    Q_PROPERTY(QString roundTripText READ roundTripText NOTIFY pictureChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(QStringList icons READ icons CONSTANT)
public:
    /// The documents outlive the controller.
    explicit ImagesController(OdApDocManager& documents);
    ~ImagesController() override;

    /// The drawing, the test card, the icons, and the file once there is one.
    QStringList sources() const;
    int source() const { return m_source; }
    void setSource(int source);
    bool isOutdated() const { return m_isOutdated; }
    /// Null when there is nothing to show.
    const QImage& picture() const { return m_picture; }
    QString sizeText() const;
    /// What becomes of the picture's pixels on the way to a wxBitmap and back.
    QString roundTripText() const;
    /// Why the last file isn't shown; empty when nothing is wrong.
    const QString& problem() const { return m_problem; }
    /// The names of the tool icons.
    const QStringList& icons() const { return m_icons; }

    /// Shows a picture file. One that can't be read leaves the former picture and gives a problem.
    bool load(const QString& file);
    /// Of the drawing's colours and of the icons.
    void setDarkBackground(bool isDark);
    /// To call after a change of the drawing.
    void refresh();

public Q_SLOTS:
    /// Makes the picture anew when it is outdated.
    void update();
    void askForFile();
    /// All sizes of an icon beside each other, pixel upon pixel, on the ground of a theme.
    QImage strip(const QString& icon, bool isDark) const;

Q_SIGNALS:
    void sourcesChanged();
    void sourceChanged();
    void outdatedChanged();
    void pictureChanged();
    void problemChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    QImage made() const;
    void setProblem(const QString& problem);

    OdApDocManager& m_documents;
    const QStringList m_icons;
    int m_source = 0;
    ut::EGuiColorTheme m_theme = ut::EGuiColorTheme::Dark;
    bool m_isOutdated = true;
    QImage m_picture;
    int m_changedPixels = 0;
    QString m_fileName;
    QImage m_file;
    QString m_problem;
};
} // namespace workbench
