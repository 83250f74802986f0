#pragma once

#include "linetypes/linetypetablemodel.h"
#include "od/odstring.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/table/sortfilterselectmodel.h"

#include <functional>
#include <memory>

namespace workbench {
/// What the page that loads linetypes talks to: those of a file, of which the selected ones go into the drawing when
/// the dialog ends by OK. A linetype that the drawing has already gets the file's dashes.
class LoadLineTypesController : public velm::BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(velm::SortFilterSelectModel* table READ table CONSTANT)
    Q_PROPERTY(QString file READ file NOTIFY fileChanged)
    /// Why there is nothing to load; empty when there is something.
    Q_PROPERTY(QString error READ error NOTIFY fileChanged)
    /// The lines of the file that were skipped, and why.
    Q_PROPERTY(QStringList problems READ problems NOTIFY fileChanged)
public:
    /// Asks for a file; empty: none.
    using FileChooser = std::function<QString()>;

    LoadLineTypesController(OdDbDatabase& database, FileChooser chooser);
    ~LoadLineTypesController() override;

    velm::SortFilterSelectModel* table() { return &m_table; }
    const QString& file() const { return m_path; }
    const QString& error() const { return m_content.error; }
    const QStringList& problems() const { return m_content.problems; }
    /// The names in the drawing of what was loaded, in the order of the table.
    const OdArray<OdString>& loaded() const { return m_loaded; }

    void open(const QString& path);
    /// Selects the linetype of the name, if the file has it.
    void choose(const QString& name);

public Q_SLOTS:
    void askForFile();
    /// Where the dashes of a line lie that is so many pixels long: a point's x is the beginning, its y the end.
    QVariantList strokes(const QVariantList& dashes, int length) const;

Q_SIGNALS:
    void fileChanged();

private:
    bool beforeOk() override;

    const std::shared_ptr<OdDbDatabase> m_database; // the drawing may be closed meanwhile
    const FileChooser m_chooser;
    QString m_path;
    LineTypeFile m_content; // the linetypes themselves are the model's
    LineTypeTableModel m_model;
    velm::SortFilterSelectModel m_table;
    OdArray<OdString> m_loaded;
};
} // namespace workbench
