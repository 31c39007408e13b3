#include "platform/ui/FixedSize.h"
#include "platform/ui/Form.h"
#include "platform/ui/Twips.h"
#include "platform/vb/VbError.h"

#include "support/ScriptedDialogs.h"
#include "support/VbErrors.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

using ui::Form;

namespace {

// A form that counts its events, can refuse to close and can fail its load.
class Probe : public ui::SingleForm<Probe> {
public:
    static inline int created = 0;
    static inline bool failLoad = false;
    Probe() { ++created; }
    int loads = 0;
    std::vector<int> queries;
    int unloads = 0;
    bool refuse = false;

protected:
    void Form_Load() override
    {
        ++loads;
        if (failLoad)
            throw vb::VbError::TypeMismatch();
    }
    void Form_QueryUnload(int& cancel, int mode) override
    {
        queries.push_back(mode);
        if (refuse)
            cancel = 1;
    }
    void Form_Unload(int&) override { ++unloads; }
};

void flushDeletes() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

// One instance from its first use to its unload; the close box asks first and may be refused.
TEST(Form, OneInstanceLivesFromItsFirstUseUntilItsUnloadOrItsCloseBox)
{
    Probe::created = 0;
    EXPECT_EQ(Probe::IfLoaded(), nullptr);
    Probe& first = Probe::Instance();
    EXPECT_EQ(&Probe::Instance(), &first);
    EXPECT_EQ(first.loads, 1);
    // a second modal Show of a shown window is refused as VB refused it
    first.Show(ui::vbModal);
    EXPECT_EQ(first.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(ErrorOf([&] { first.Show(ui::vbModal); }), 400);

    QSignalSpy unloaded(&first, &Form::Unloaded);
    QPointer<Probe> gone(&first);
    EXPECT_TRUE(first.Unload());
    EXPECT_EQ(first.queries, std::vector<int>{ui::vbFormCode});
    EXPECT_EQ(first.unloads, 1);
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_FALSE(ui::Forms().contains(&first));
    EXPECT_EQ(Probe::IfLoaded(), nullptr);
    flushDeletes();
    EXPECT_TRUE(gone.isNull()) << "an unloaded form is destroyed";

    Probe& second = Probe::Instance();
    EXPECT_EQ(Probe::created, 2);
    EXPECT_EQ(second.loads, 1) << "a fresh instance loads again";
    second.Show();
    second.refuse = true;
    second.close();
    EXPECT_EQ(second.queries, std::vector<int>{ui::vbFormControlMenu});
    EXPECT_TRUE(second.isVisible());
    second.refuse = false;
    QPointer<Probe> closed(&second);
    second.close();
    EXPECT_EQ(second.unloads, 1);
    EXPECT_EQ(Probe::IfLoaded(), nullptr);
    flushDeletes();
    EXPECT_TRUE(closed.isNull());
}

TEST(Form, ALoadThatFailsLeavesNoHalfLoadedForm)
{
    Probe::created = 0;
    Probe::failLoad = true;
    EXPECT_EQ(ErrorOf([] { Probe::Instance(); }), 13) << "the load's error reaches the caller";
    EXPECT_EQ(Probe::IfLoaded(), nullptr);
    EXPECT_TRUE(ui::Forms().isEmpty());

    // the next use makes a fresh form and runs its load again
    Probe::failLoad = false;
    Probe& f = Probe::Instance();
    EXPECT_EQ(Probe::created, 2);
    EXPECT_EQ(f.loads, 1);
    f.Unload();
    flushDeletes();
}

TEST(Form, ModalWindowInTheProgramWaitsUntilItGoes)
{
    ui::SetModalLoop(true);
    Probe& f = Probe::Instance();
    bool waited = false;
    QTimer::singleShot(0, &f, [&] {
        waited = f.isVisible();
        f.Unload();
    });
    f.Show(ui::vbModal);
    ui::SetModalLoop(false);
    EXPECT_TRUE(waited) << "Show returned only after the window was unloaded";
    EXPECT_EQ(Probe::IfLoaded(), nullptr);
    flushDeletes();
}

TEST(FixedSize, CentresAtLoadAndKeepsItsSize)
{
    auto* f = new Form;
    f->Load();
    ui::FixedSize::Apply(*f, 5940, 7020);
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(f->Width(), 5940);
    EXPECT_EQ(f->Left(), ui::PixelsToTwips(ui::TwipsToPixels((ui::PixelsToTwips(screen.width()) - 5940) / 2)));
    EXPECT_EQ(f->Top(), ui::PixelsToTwips(ui::TwipsToPixels((ui::PixelsToTwips(screen.height()) - 7020) / 2)));
    f->show();
    QCoreApplication::processEvents();

    f->resize(200, 100);
    EXPECT_EQ(f->Width(), 5940) << "a resize is undone";

    f->showMaximized();
    QCoreApplication::processEvents();
    EXPECT_EQ(f->WindowState(), ui::vbNormal) << "maximise goes back to normal";
    EXPECT_EQ(f->Width(), 5940);

    f->showMinimized();
    QCoreApplication::processEvents();
    EXPECT_EQ(f->WindowState(), ui::vbMinimized) << "a minimised window is left alone";
    f->Unload();
    flushDeletes();
}

} // namespace
