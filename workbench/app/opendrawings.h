#pragma once

#include "od/odapdocmanager.h"

#include <QObject>
#include <QStringList>

#include <functional>

namespace workbench {
/// What the page of tabs above the canvas shows and does: the open drawings in the order in which they were opened.
class OpenDrawings : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QStringList files READ files NOTIFY filesChanged)
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
public:
    /// The documents outlive the object.
    explicit OpenDrawings(OdApDocManager& documents);
    ~OpenDrawings() override;

    /// Their full paths.
    QStringList files() const { return m_files; }
    /// -1 without a drawing.
    int current() const;

    // A bad index does nothing.
    Q_INVOKABLE void activate(int index);
    Q_INVOKABLE void close(int index);
    /// What a click does, which leaves the keyboard to the command line.
    Q_INVOKABLE void choose(int index);

    std::function<void()> onChosen;

Q_SIGNALS:
    void filesChanged();
    void currentChanged();

private:
    OdApDocument* document(int index) const;
    void update();

    void documentCreated(OdApDocument*) override { update(); }
    void documentBecameCurrent(OdApDocument*) override { Q_EMIT currentChanged(); }
    void documentDestroyed(const OdString&) override { update(); }

    OdApDocManager& m_documents;
    QStringList m_files;
};
} // namespace workbench
