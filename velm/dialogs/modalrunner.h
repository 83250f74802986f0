#pragma once

#include "velm/velm_export.h"

#include <functional>
#include <memory>

namespace qwc {
class qwxDialog;
}

namespace velm {
/// An exception kept as an object, since none may cross the host's modal event loop.
class VELM_EXPORT ICppUnitException
{
public:
    virtual ~ICppUnitException();
    /// Throws what the object stands for.
    virtual void rethrow() = 0;
};

/// Lets a GUI test run code inside a modal dialog: the test makes a runner on its stack and opens the dialog, whose
/// modal run calls run(). What the function throws comes out of the runner's destructor.
class VELM_EXPORT ModalRunner
{
public:
    /// Becomes the active runner.
    explicit ModalRunner(std::function<void(qwc::qwxDialog*)> function);
    /// Leaves no active runner, then throws the stored exception.
    ~ModalRunner() noexcept(false);
    ModalRunner(const ModalRunner&) = delete;
    ModalRunner& operator=(const ModalRunner&) = delete;

    /// An empty function throws std::bad_function_call.
    void run(qwc::qwxDialog* dialog);
    /// The last exception wins.
    void setException(std::unique_ptr<ICppUnitException> exception);

    /// Null when there is none.
    static ModalRunner* getActiveRunner();

    static ModalRunner* s_modalRunner; // not owned
    static bool s_isGuiTesting;

private:
    std::unique_ptr<ICppUnitException> m_exception;
    std::function<void(qwc::qwxDialog*)> m_function;
};

VELM_EXPORT void dlgSetGuiTesting(bool testing);
VELM_EXPORT bool isGuiTesting();
} // namespace velm
