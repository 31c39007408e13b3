#include "platform/ui/Dispatch.h"

#include "platform/app/App.h"
#include "platform/ui/Dialogs.h"
#include "platform/vb/VbError.h"

#include <new>

namespace ui {

QString FatalErrorText(const vb::VbError& e)
{
    return QStringLiteral("実行時エラー '") + QString::number(e.Number()) + QStringLiteral("':") + vbCrLf + vbCrLf + e.Description();
}

namespace {

void fatal(const vb::VbError& e)
{
    Dialogs().MessageBox(FatalErrorText(e), vbCritical | vbOKOnly, app::Title());
    app::End(FatalExitStatus);
}

} // namespace

void Dispatch(const std::function<void()>& handler)
{
    try {
        handler();
    } catch (const vb::VbError& e) {
        fatal(e);
    } catch (const std::bad_alloc&) {
        fatal(vb::VbError::OutOfMemory());
    } catch (const std::exception& e) {
        // a failure outside the VB model (a bug of ours) ends the run the same way, as the
        // run time's internal error, rather than tearing through Qt's event delivery
        fatal(vb::VbError::InternalError(QString::fromLocal8Bit(e.what())));
    }
}

} // namespace ui
