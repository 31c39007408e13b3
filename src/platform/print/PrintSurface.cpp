#include "platform/print/PrintSurface.h"

#include "platform/print/PrinterSurface.h"

#include <QPrinter>

namespace print {

namespace {

std::function<std::shared_ptr<PrintSurface>()>& factory()
{
    static std::function<std::shared_ptr<PrintSurface>()> made;
    return made;
}

} // namespace

QPrinter& Printer()
{
    static QPrinter printer(QPrinter::HighResolution);
    return printer;
}

std::shared_ptr<PrintSurface> OpenPrinter()
{
    if (factory())
        return factory()();
    return std::make_shared<PrinterSurface>(Printer());
}

void SetSurfaceFactory(std::function<std::shared_ptr<PrintSurface>()> made) { factory() = std::move(made); }

} // namespace print
