#include "velm/dialogs/modalrunner.h"

#include <utility>

namespace velm {
ModalRunner* ModalRunner::s_modalRunner = nullptr;
bool ModalRunner::s_isGuiTesting = false;

ICppUnitException::~ICppUnitException() = default;

ModalRunner::ModalRunner(std::function<void(qwc::qwxDialog*)> function) : m_function(std::move(function))
{
    s_modalRunner = this;
}

ModalRunner::~ModalRunner() noexcept(false)
{
    // Also when another runner was made after this one.
    s_modalRunner = nullptr;
    if (m_exception)
        m_exception->rethrow();
}

void ModalRunner::run(qwc::qwxDialog* dialog)
{
    m_function(dialog);
}

void ModalRunner::setException(std::unique_ptr<ICppUnitException> exception)
{
    m_exception = std::move(exception);
}

ModalRunner* ModalRunner::getActiveRunner()
{
    return s_modalRunner;
}

void dlgSetGuiTesting(bool testing)
{
    ModalRunner::s_isGuiTesting = testing;
}

bool isGuiTesting()
{
    return ModalRunner::s_isGuiTesting;
}
} // namespace velm
