#pragma once

#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/drawingprops/lineweightobject.h"

#include <vector>

namespace velm {
/// The model under a lineweight combo. Names are asked for whenever a row is shown, so that they follow the host's
/// units.
class VELM_EXPORT LineWeightModel : public ILineWeightModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentItemChanged)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)
public:
    /// As createLineWeightModel().
    LineWeightModel(const IGuiController& gui, const LineWeightModelParams& params, const QSize& size);
    ~LineWeightModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    /// Role 0 "object": the row's object, with its name brought up to date, unless the model varies.
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getCurrentIndex() const override { return m_currentIndex; }
    bool isVaries() const override { return m_isVaries; }
    void setIsVaries(bool varies) override;
    std::optional<int> indexOf(int lineWeight) const override;
    std::optional<int> lineWeight(int index) const override;
    bool setCurrentIndex(int index) override;

    QString tooltip() const;
    QSize size() const { return m_size; }

Q_SIGNALS:
    void currentItemChanged();

public Q_SLOTS:
    /// What a person does: the host hears of it, other than of setCurrentIndex().
    void onChangeCurrentComboIndex(int newIndex);

private:
    int count() const { return static_cast<int>(m_rows.size()); }
    bool isRow(int index) const { return index >= 0 && index < count(); }
    const LineWeightObject& row(int index) const { return *m_rows[static_cast<std::size_t>(index)]; }
    void makeCurrent(int index);

    int m_currentIndex = 0;
    bool m_isVaries = false;
    QSize m_size;
    std::vector<std::unique_ptr<LineWeightObject>> m_rows;
    const IGuiController& m_gui;
};
} // namespace velm
