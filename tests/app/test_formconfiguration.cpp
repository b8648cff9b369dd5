#include "app/formconfiguration.h"
#include "app/versionabout.h"
#include "clock/clocktreestate.h"
#include "clock/mq48pllconfig.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/gpiosettingsmodel.h"
#include "pinout/chipview.h"
#include "widgets/messagebox.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <gtest/gtest.h>

#include <functional>

namespace {

QString trForm(const char *text)
{
    return QCoreApplication::translate("FormConfiguration", text);
}

// A program folder in a temporary directory holding a copy of the work form's database; the
// paths point into it while the object lives, and the language is restored afterwards.
class WorkFolder
{
public:
    WorkFolder() : m_language(g_language)
    {
        const QString source = testsupport::fixture(QStringLiteral("workform"));
        QDirIterator it(source, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            const QString target = m_dir.path() + file.mid(source.size());
            testsupport::writeFile(target, testsupport::readFile(file));
        }
        setAppFolderOverride(m_dir.path());
        g_language = 0;
        // The fixture's peripherals have no mode files; their panels say so through the sink.
        setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    }
    ~WorkFolder()
    {
        setUserMessageHandler({});
        setAppFolderOverride(QString());
        g_language = m_language;
    }
    QString file(const QString &relative) const { return m_dir.path() + '/' + relative; }

private:
    QTemporaryDir m_dir;
    int m_language;
};

// Answers the message boxes that come up next, one pressed button text per box in turn, and
// handles other modal windows (file dialogs) one handler per window. Message titles and texts
// are recorded.
class ModalHandler
{
public:
    using Handler = std::function<void(QWidget *)>;

    ModalHandler() : m_saved(userMessageHandler())
    {
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            titles << m.title;
            texts << m.text;
            if (m_presses.isEmpty())
                return -1;
            return int(m.buttons.indexOf(m_presses.takeFirst()));
        });
    }
    ~ModalHandler() { setUserMessageHandler(m_saved); }
    ModalHandler(const ModalHandler &) = delete;
    ModalHandler &operator=(const ModalHandler &) = delete;

    void then(Handler handler) { m_handlers << handler; }
    // Presses the button showing `buttonText` on the next message box.
    void press(const QString &buttonText) { m_presses << buttonText; }
    void arm()
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this]() {
            QWidget *window = QApplication::activeModalWidget();
            if (!window || window == m_last || window->inherits("QProgressDialog"))
                return;
            m_last = window;
            if (m_handlers.isEmpty()) {
                // A window nobody expected would otherwise wait forever.
                ADD_FAILURE() << "unexpected window: " << window->windowTitle().toStdString();
                window->close();
                return;
            }
            m_handlers.takeFirst()(window);
        });
        m_timer.start();
    }
    bool done() const { return m_handlers.isEmpty() && m_presses.isEmpty(); }

    QStringList titles;
    QStringList texts;

private:
    UserMessageHandler m_saved;
    QStringList m_presses;
    QList<Handler> m_handlers;
    QTimer m_timer;
    QPointer<QWidget> m_last;
};

MCUPinSignal *findSignal(DevicePinInfo *info, const QString &pinName, const QString &func)
{
    for (MCUPinsBaseInfo *pin : info->pins) {
        if (pin->PinName != pinName)
            continue;
        for (MCUPinSignal *signal : pin->signalList) {
            if (signal->Func == func)
                return signal;
        }
    }
    return nullptr;
}

void lightUsartTx(FormConfiguration &form)
{
    ModeSignal tx;
    tx.enabled = true;
    tx.signalName = QStringLiteral("USART1_TX");
    tx.IOMode = QStringLiteral("MuxOutputPushPull");
    form.ReciveIPPinSignals_FormIP({tx}, {tx}, true, QStringLiteral("USART1"));
}

QStringList actionTexts(const QMenu *menu)
{
    QStringList texts;
    for (QAction *action : menu->actions())
        texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
    return texts;
}

QAction *actionByText(const QMenu *menu, const QString &text)
{
    for (QAction *action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

QMenu *menuByTitle(const FormConfiguration &form, const QString &title)
{
    for (QMenu *menu : form.findChildren<QMenu *>()) {
        if (menu->title() == title)
            return menu;
    }
    return nullptr;
}

QPushButton *buttonByText(const FormConfiguration &form, const QString &text)
{
    for (QPushButton *button : form.findChildren<QPushButton *>()) {
        // Buttons show a literal '&' as "&&".
        if (button->text().replace(QStringLiteral("&&"), QStringLiteral("&")) == text)
            return button;
    }
    return nullptr;
}

TEST(FormConfiguration, MenusActionsAndShortcutsStandAsDesigned)
{
    WorkFolder folder;
    FormConfiguration form;

    EXPECT_EQ(form.windowTitle(), QStringLiteral("MQ48 Pin Forge V1.0.08"));
    QMenuBar *bar = form.findChild<QMenuBar *>();
    ASSERT_NE(bar, nullptr);
    QStringList titles;
    for (QAction *action : bar->actions())
        titles << action->text();
    EXPECT_EQ(titles, QStringList({"File", "Language", "Generate code", "Help"}));

    QMenu *file = menuByTitle(form, "File");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(actionTexts(file),
              QStringList({"New Design", "Open Design", "Save Design", "Design Save As", "|",
                           "Package Manager", "|", "Generate Report", "|", "Resent Design"}));
    EXPECT_EQ(actionTexts(menuByTitle(form, "Language")), QStringList({"English", "Chinese"}));
    EXPECT_EQ(actionTexts(menuByTitle(form, "Help")),
              QStringList(
                  {"Version", "New version download", "Go to Velmora home page", "Open Manual"}));

    const QList<QPair<QString, QKeySequence>> shortcuts = {
        {"New Design", QKeySequence(QKeySequence::New)},
        {"Open Design", QKeySequence(QKeySequence::Open)},
        {"Save Design", QKeySequence(QKeySequence::Save)},
        {"Design Save As", QKeySequence("Ctrl+Alt+A")},
        {"Package Manager", QKeySequence("Ctrl+P")},
        {"Generate Report", QKeySequence("Ctrl+R")}};
    for (const auto &pair : shortcuts) {
        QAction *action = actionByText(file, pair.first);
        ASSERT_NE(action, nullptr) << pair.first.toStdString();
        EXPECT_EQ(action->shortcut(), pair.second) << pair.first.toStdString();
        EXPECT_EQ(action->font().family(), QStringLiteral("Arial"));
    }
    QMenu *help = menuByTitle(form, "Help");
    EXPECT_EQ(actionByText(help, "Open Manual")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(actionByText(help, "Go to Velmora home page")->shortcut(), QKeySequence("Alt+H"));
    EXPECT_EQ(actionByText(menuByTitle(form, "Generate code"), "Generate code")->shortcut(),
              QKeySequence("Ctrl+G"));

    // Every action of the menus works.
    for (const char *text :
         {"Open Design", "Save Design", "Design Save As", "Generate Report", "Package Manager"})
        EXPECT_TRUE(actionByText(file, text)->isEnabled()) << text;
    EXPECT_TRUE(actionByText(help, "New version download")->isEnabled());
    EXPECT_TRUE(actionByText(file, "New Design")->isEnabled());
    EXPECT_TRUE(actionByText(help, "Version")->isEnabled());

    // English is current: its action is checked and the tool bar shows the active flag.
    QMenu *language = menuByTitle(form, "Language");
    EXPECT_TRUE(actionByText(language, "English")->isChecked());
    EXPECT_FALSE(actionByText(language, "Chinese")->isChecked());
}

TEST(FormConfiguration, BuildingADesignFillsTheFormAndRebuildingReplacesIt)
{
    WorkFolder folder;
    FormConfiguration form;
    EXPECT_FALSE(form.isDesignOpen());

    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    EXPECT_TRUE(form.isDesignOpen());
    EXPECT_EQ(form.design().series, QStringLiteral("MQ48T110"));
    EXPECT_EQ(form.design().pid, 0x5110A001u);
    EXPECT_EQ(form.design().loadSteps.first(), QStringLiteral("catalogue"));
    EXPECT_EQ(form.design().loadSteps.last(), QStringLiteral("clockModel"));
    ASSERT_NE(form.chipDrawing(), nullptr);
    EXPECT_EQ(form.chipDrawing()->devicePinInfo(), form.design().devicePinInfo);
    EXPECT_EQ(form.chipDrawing()->pinItems().size(), 8);
    bool labelFound = false;
    for (QLabel *label : form.findChildren<QLabel *>())
        labelFound = labelFound || label->text() == QStringLiteral("  MQ48T110FX  ");
    EXPECT_TRUE(labelFound);

    // A request relayed through the form reaches the pin engine and lights the signal.
    lightUsartTx(form);
    MCUPinSignal *tx = findSignal(form.design().devicePinInfo, "PA0", "USART1_TX");
    ASSERT_NE(tx, nullptr);
    EXPECT_GT(tx->status, 0);

    EXPECT_EQ(form.clockPage()->mcuModel(), 9);

    QPointer<ChipView> oldDrawing = form.chipDrawing();
    ASSERT_TRUE(form.buildDesign("MQ48T230", "MQ48T230QY", "QFN12"));
    EXPECT_TRUE(oldDrawing.isNull());
    EXPECT_EQ(form.design().mcuName, QStringLiteral("MQ48T230QY"));
    EXPECT_EQ(form.design().pid, 0x5230B002u);
    EXPECT_EQ(form.design().dmaTrees.size(), 2);
    EXPECT_TRUE(form.design().gpioPins.isEmpty());
    EXPECT_TRUE(form.panelStatus().isEmpty());
    EXPECT_EQ(form.clockPage()->mcuModel(), 2);
    ASSERT_NE(form.chipDrawing(), nullptr);
    EXPECT_EQ(form.chipDrawing()->devicePinInfo(), form.design().devicePinInfo);

    // A device whose file is missing is named in one message, and the open design stays.
    {
        ModalHandler messages;
        EXPECT_FALSE(form.buildDesign("MQ48T110", "MQ48T110ZZ", "LQFP8"));
        ASSERT_EQ(messages.texts.size(), 1);
        EXPECT_TRUE(messages.texts.first().contains("MQ48T110ZZ.xml"));
    }
    EXPECT_TRUE(form.isDesignOpen());
    EXPECT_EQ(form.design().mcuName, QStringLiteral("MQ48T230QY"));

    // So does an empty selection, which an empty catalogue passes on.
    ASSERT_TRUE(form.buildDesign("", "", ""));
    EXPECT_TRUE(form.isDesignOpen());
    EXPECT_TRUE(form.chipDrawing()->pinItems().isEmpty());
}

TEST(FormConfiguration, StatusChangesFlaggedForTheClockDriveItsGates)
{
    WorkFolder folder;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    const ClockTreeState *clock = form.clockPage()->clockState();
    ASSERT_NE(clock, nullptr);
    ASSERT_FALSE(clock->adcEnabled);

    form.ReceiveIPStatusFlag("ADC1", IPSTATUS_ACTIVE, false);
    EXPECT_FALSE(clock->adcEnabled);
    form.ReceiveIPStatusFlag("ADC1", IPSTATUS_ACTIVE, true);
    EXPECT_TRUE(clock->adcEnabled);
    form.ReceiveIPStatusFlag("ADC1", IPSTATUS_INACTIVE, true);
    EXPECT_FALSE(clock->adcEnabled);
}

TEST(FormConfiguration, PageButtonsSwitchPagesAndCarryTheirColoursAndWarnings)
{
    WorkFolder folder;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    form.show();

    QPushButton *pin = buttonByText(form, "Pin out & Configuration");
    QPushButton *clock = buttonByText(form, "Clock Configuration");
    QPushButton *code = buttonByText(form, "Code View");
    ASSERT_TRUE(pin && clock && code);
    const QString active = QStringLiteral("rgb(35, 184, 198)");
    const QString idle = QStringLiteral("rgb(85, 126, 191)");
    EXPECT_TRUE(pin->styleSheet().contains(active));
    EXPECT_TRUE(clock->styleSheet().contains(idle));
    EXPECT_TRUE(form.chipDrawing()->isVisible());
    EXPECT_FALSE(form.clockPage()->isVisible());

    clock->click();
    EXPECT_TRUE(clock->styleSheet().contains(active));
    EXPECT_TRUE(pin->styleSheet().contains(idle));
    EXPECT_TRUE(code->styleSheet().contains(idle));
    EXPECT_TRUE(form.clockPage()->isVisible());
    EXPECT_FALSE(form.chipDrawing()->isVisible());

    pin->click();
    EXPECT_TRUE(pin->styleSheet().contains(active));
    EXPECT_FALSE(form.clockPage()->isVisible());
    EXPECT_TRUE(form.chipDrawing()->isVisible());

    // Clock errors mark the clock button only.
    form.ReciveClockHaveErrorSignal(true);
    EXPECT_FALSE(clock->icon().isNull());
    EXPECT_TRUE(pin->icon().isNull());
    form.ReciveClockHaveErrorSignal(false);
    EXPECT_TRUE(clock->icon().isNull());

    // An unfinished selection of any mode panel marks the pin button until all are done;
    // DMA panels don't count.
    form.ReceiveIPStatusFlag("USART1", IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED, false);
    EXPECT_FALSE(pin->icon().isNull());
    form.ReceiveIPStatusFlag("ADC1", IPSTATUS_ACTIVE, false);
    EXPECT_FALSE(pin->icon().isNull());
    form.ReceiveIPStatusFlag("USART1", IPSTATUS_ACTIVE, false);
    EXPECT_TRUE(pin->icon().isNull());
    form.ReceiveIPStatusFlag("DMA1", IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED, false);
    EXPECT_TRUE(pin->icon().isNull());

    // A new design starts without warnings.
    form.ReceiveIPStatusFlag("USART1", IPSTATUS_UNFINISHED, false);
    form.ReciveClockHaveErrorSignal(true);
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    EXPECT_TRUE(pin->icon().isNull());
    EXPECT_TRUE(clock->icon().isNull());
}

TEST(FormConfiguration, LanguageSwitchRelabelsKeepsTheDesignAndWritesTheSetting)
{
    WorkFolder folder;
    QTranslator translator;
    FormConfiguration form;
    form.setTranslator(&translator);
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    lightUsartTx(form);
    ChipView *drawing = form.chipDrawing();
    DevicePinInfo *pins = form.design().devicePinInfo;
    QMenu *language = menuByTitle(form, "Language");
    ASSERT_NE(language, nullptr);

    // Cancelling puts the check marks back.
    {
        ModalHandler modal;
        modal.press("Cancel");
        modal.arm();
        actionByText(language, "Chinese")->trigger();
        EXPECT_TRUE(modal.done());
        EXPECT_EQ(modal.texts, QStringList({"Are you sure to switch language?"}));
    }
    EXPECT_EQ(g_language, 0);
    EXPECT_FALSE(QFile::exists(folder.file("config.xml")));
    EXPECT_TRUE(actionByText(language, "English")->isChecked());
    EXPECT_FALSE(actionByText(language, "Chinese")->isChecked());

    {
        ModalHandler modal;
        modal.press("Yes");
        modal.arm();
        actionByText(language, "Chinese")->trigger();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_EQ(g_language, 1);
    EXPECT_TRUE(
        testsupport::readFile(folder.file("config.xml")).contains("<Language>UI_CH</Language>"));
    // Texts change, the design doesn't.
    EXPECT_NE(trForm("File"), QStringLiteral("File"));
    EXPECT_NE(menuByTitle(form, trForm("File")), nullptr);
    EXPECT_EQ(language->title(), trForm("Language"));
    EXPECT_TRUE(actionByText(language, trForm("Chinese"))->isChecked());
    EXPECT_EQ(form.chipDrawing(), drawing);
    EXPECT_EQ(form.design().devicePinInfo, pins);
    EXPECT_EQ(form.design().mcuName, QStringLiteral("MQ48T110FX"));
    EXPECT_GT(findSignal(pins, "PA0", "USART1_TX")->status, 0);

    // Choosing the current language asks nothing.
    actionByText(language, trForm("Chinese"))->trigger();
    EXPECT_TRUE(actionByText(language, trForm("Chinese"))->isChecked());

    {
        ModalHandler modal;
        modal.press(trForm("Yes"));
        modal.arm();
        actionByText(language, trForm("English"))->trigger();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_EQ(g_language, 0);
    EXPECT_TRUE(
        testsupport::readFile(folder.file("config.xml")).contains("<Language>UI_EN</Language>"));
    EXPECT_EQ(language->title(), QStringLiteral("Language"));
    QCoreApplication::removeTranslator(&translator);
}

TEST(FormConfiguration, ClosingAsksToSaveChangesAndKeepsTheDesignUnlessTold)
{
    WorkFolder folder;
    FormConfiguration form;
    QSignalSpy closed(&form, &FormConfiguration::formClosed);
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    form.show();
    const QString scratch = folder.file("MQ48DB/CodeView/main.c");
    ASSERT_TRUE(testsupport::writeFile(scratch, "int main(void) { return 0; }\n"));
    ASSERT_NE(form.gpioModel(), nullptr);
    form.gpioModel()->setShowType(1);
    ASSERT_TRUE(form.isDesignModified());

    {
        ModalHandler modal;
        modal.press("Cancel");
        modal.arm();
        form.close();
        EXPECT_TRUE(modal.done());
        EXPECT_EQ(modal.titles, QStringList({"Question"}));
        EXPECT_EQ(modal.texts, QStringList({"The current design will be closed. Would you like "
                                            "to save the design?"}));
    }
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(closed.count(), 0);

    // "Yes" asks where to save; cancelling that keeps the design open.
    {
        ModalHandler modal;
        modal.press("Yes");
        modal.then([](QWidget *window) { window->close(); });
        modal.arm();
        form.close();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.isDesignOpen());
    EXPECT_EQ(closed.count(), 0);
    EXPECT_TRUE(QFile::exists(scratch));

    {
        ModalHandler modal;
        modal.press("No");
        modal.arm();
        form.close();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(QDir(folder.file("MQ48DB/CodeView")).exists());
}

TEST(FormConfiguration, ClosingAnUnchangedDesignAsksNothing)
{
    WorkFolder folder;
    FormConfiguration form;
    QSignalSpy closed(&form, &FormConfiguration::formClosed);
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    form.show();
    ModalHandler modal;
    form.close();
    EXPECT_TRUE(modal.texts.isEmpty());
    EXPECT_EQ(closed.count(), 1);
}

TEST(FormConfiguration, ClosingWithoutADesignAsksNothing)
{
    WorkFolder folder;
    FormConfiguration form;
    QSignalSpy closed(&form, &FormConfiguration::formClosed);
    form.show();
    form.close();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(closed.count(), 1);
}

TEST(FormConfiguration, ResetAllConfigurationsClearsThePinsAfterConfirmation)
{
    WorkFolder folder;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    lightUsartTx(form);
    MCUPinSignal *tx = findSignal(form.design().devicePinInfo, "PA0", "USART1_TX");
    ASSERT_GT(tx->status, 0);

    {
        ModalHandler modal;
        modal.press("Cancel");
        modal.arm();
        form.AllConfigReset();
        EXPECT_TRUE(modal.done());
        EXPECT_EQ(modal.titles, QStringList({"Warning"}));
    }
    EXPECT_GT(tx->status, 0);

    {
        ModalHandler modal;
        modal.press("Yes");
        modal.press("Ok");
        modal.arm();
        form.AllConfigReset();
        EXPECT_TRUE(modal.done());
        EXPECT_EQ(modal.texts.value(1), QStringLiteral("Reset succeed!"));
    }
    EXPECT_EQ(tx->status, 0);
}

TEST(FormConfiguration, NewDesignAsksFirstAndBuildsTheChosenDevice)
{
    WorkFolder folder;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T230", "MQ48T230QY", "QFN12"));
    // Only a changed design is worth a question.
    ASSERT_NE(form.gpioModel(), nullptr);
    form.gpioModel()->setShowType(1);
    ASSERT_TRUE(form.isDesignModified());
    QAction *newDesign = actionByText(menuByTitle(form, "File"), "New Design");

    {
        ModalHandler modal;
        modal.press("Cancel");
        modal.arm();
        newDesign->trigger();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_EQ(form.design().mcuName, QStringLiteral("MQ48T230QY"));

    {
        ModalHandler modal;
        modal.press("No");
        // The device selection opens on the first series of the catalogue.
        modal.then([](QWidget *dialog) {
            for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
                if (button->text() == QStringLiteral("New Design")) {
                    button->click();
                    return;
                }
            }
            dialog->close();
        });
        modal.arm();
        newDesign->trigger();
        EXPECT_TRUE(modal.done());
    }
    EXPECT_EQ(form.design().mcuName, QStringLiteral("MQ48T110FX"));
    EXPECT_EQ(form.design().pid, 0x5110A001u);
}

TEST(FormConfiguration, VersionShowsTheAboutBox)
{
    WorkFolder folder;
    FormConfiguration form;
    QString title;
    QString text;
    ModalHandler modal;
    modal.then([&](QWidget *window) {
        title = window->windowTitle();
        if (auto *about = qobject_cast<VersionAbout *>(window))
            text = about->titleText() + ' ' + about->versionText() + ' ' + about->makerText();
        window->close();
    });
    modal.arm();
    actionByText(menuByTitle(form, "Help"), "Version")->trigger();
    EXPECT_TRUE(modal.done());
    EXPECT_EQ(title, QStringLiteral("About"));
    EXPECT_TRUE(text.contains(QStringLiteral("MQ48 Pin Forge V1.0.08")));
    EXPECT_TRUE(text.contains(QStringLiteral("V1.0.08")));
    EXPECT_TRUE(text.contains(QStringLiteral("Velmora")));
}

} // namespace
