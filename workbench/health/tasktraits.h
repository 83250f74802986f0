#pragma once

#include "velm/services/iqttasktraits.h"

namespace workbench {
/// What the page of the drawing's health shows of one kind of task: the four texts are its title, what it looks for,
/// what may be done about it, and the name of a tool icon. The first flag says whether it is looked for, the second
/// whether what is found can be selected on the canvas. There are no objects.
class TaskTraits final : public velm::dwghealth::IQtTaskTraits
{
public:
    struct Texts
    {
        QString title;
        QString description;
        QString advice;
        QString icon;
    };

    TaskTraits(oc::dwghealth::ETaskType type, Texts texts, bool isEnabled, bool isSelectable);

    oc::dwghealth::ETaskType taskType() const override { return m_type; }
    QString traitText1() const override { return m_texts.title; }
    QString traitText2() const override { return m_texts.description; }
    QString traitText3() const override { return m_texts.advice; }
    QString traitText4() const override { return m_texts.icon; }
    bool traitFlag1() const override { return m_isEnabled; }
    std::shared_ptr<void> traitObject1() const override { return {}; }
    std::shared_ptr<void> traitObject2(std::shared_ptr<void>) const override { return {}; }
    bool traitFlag2() const override { return m_isSelectable; }

private:
    const oc::dwghealth::ETaskType m_type;
    const Texts m_texts;
    const bool m_isEnabled;
    const bool m_isSelectable;
};
} // namespace workbench
