// What a new user sees first: fields show their whole text, labels keep clear of their
// controls, group names speak the user's language, and a greyed mode says why.

#include "app/formconfiguration.h"
#include "app/mainwindow.h"
#include "app/new_design_select.h"
#include "app/uifont.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/modelogic.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procombobox.h"
#include "tests/app/appfolder.h"
#include "tests/common/testsupport.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDirIterator>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QStandardItemModel>
#include <QStyle>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <memory>

namespace {

// Installs the Chinese catalogue for the life of the object.
struct Chinese
{
    Chinese()
    {
        EXPECT_TRUE(translator.load(QStringLiteral(":/image/tr_zh.qm")));
        QCoreApplication::installTranslator(&translator);
        g_language = 1;
    }
    ~Chinese()
    {
        QCoreApplication::removeTranslator(&translator);
        g_language = 0;
    }
    QTranslator translator;
};

// The width a line edit has for its text.
int textRoom(const QLineEdit *edit)
{
    const QMargins m = edit->textMargins();
    return edit->contentsRect().width() - m.left() - m.right() -
           2 * edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
}

void expectWholeSramText(bool chinese)
{
    std::unique_ptr<Chinese> zh(chinese ? new Chinese : nullptr);
    New_Design_Select dialog;
    dialog.show();
    QComboBox *series = dialog.findChildren<QComboBox *>().value(0);
    QComboBox *device = dialog.findChildren<QComboBox *>().value(1);
    ASSERT_TRUE(series && device);
    series->setCurrentIndex(series->findText("MQ48T510"));
    device->setCurrentIndex(device->findText("MQ48T510RCT7"));
    QCoreApplication::processEvents();
    const QList<QLineEdit *> edits = dialog.findChildren<QLineEdit *>();
    const QLineEdit *sram = nullptr;
    for (const QLineEdit *edit : edits) {
        if (edit->text().contains("224 KB"))
            sram = edit;
    }
    ASSERT_TRUE(sram) << (chinese ? "Chinese" : "English");
    EXPECT_EQ(sram->cursorPosition(), 0);
    EXPECT_LE(sram->fontMetrics().horizontalAdvance(sram->text()), textRoom(sram))
        << qPrintable(sram->text());
}

class NewUserLook : public ::testing::Test
{
protected:
    TempAppFolder folder;
};

} // namespace

// "Default: 384 KB    Max: 512 KB" shows whole, from its start, in both languages.
TEST_F(NewUserLook, NewDesignDialogShowsTheWholeSramText)
{
    expectWholeSramText(false);
    expectWholeSramText(true);
}

// "Language:" keeps clear of its combo box.
TEST_F(NewUserLook, LanguageLabelKeepsClearOfItsBox)
{
    MainWindow w;
    w.resize(1100, 780);
    w.show();
    QCoreApplication::processEvents();
    QComboBox *box = w.findChild<QComboBox *>("languageComboBox");
    ASSERT_TRUE(box);
    const QLabel *label = nullptr;
    for (const QLabel *l : w.findChildren<QLabel *>()) {
        if (l->text() == "Language:")
            label = l;
    }
    ASSERT_TRUE(label);
    const int labelEnd = label->mapTo(&w, QPoint(label->contentsRect().left(), 0)).x() +
                         label->fontMetrics().horizontalAdvance(label->text());
    EXPECT_GE(box->mapTo(&w, QPoint(0, 0)).x() - labelEnd, 6);
}

// The group names of the peripheral tree follow the language.
TEST_F(NewUserLook, PeripheralGroupsSpeakTheLanguage)
{
    QList<PeripheralListItem> rows;
    for (const char *group : {"Timers", "Connectivity", "Vendor Specific"}) {
        PeripheralListItem row;
        row.InstanceName = QString(group).left(3).toUpper() + "1";
        row.GroupName = group;
        rows << row;
    }
    std::unique_ptr<PeripheralsConfig> tree;
    {
        Chinese zh;
        tree.reset(new PeripheralsConfig(rows));
        EXPECT_NE(tree->groups().at(0).header->text(0).trimmed(), "Timers");
        EXPECT_NE(tree->groups().at(1).header->text(0).trimmed(), "Connectivity");
        // A name the program doesn't know stays as the file writes it.
        EXPECT_EQ(tree->groups().at(2).header->text(0).trimmed(), "Vendor Specific");
    }
    tree->retranslateUi();
    EXPECT_EQ(tree->groups().at(0).header->text(0).trimmed(), "Timers");
    EXPECT_EQ(tree->groups().at(1).header->text(0).trimmed(), "Connectivity");
}

// A mode greyed because its crystal pins are taken says by what.
TEST_F(NewUserLook, AGreyedModeSaysWhichPinIsTakenAndByWhat)
{
    DevicePinInfo info;
    info.MCUName = "MQ48T110F6P";
    info.Package = "TSSOP";
    info.PinNums = 20;
    const QList<QPair<QString, QStringList>> pins = {{"PF0", {"I2C1_SDA", "CRM_HEXT_IN"}},
                                                     {"PF1", {"I2C1_SCL", "CRM_HEXT_OUT"}}};
    for (int i = 0; i < pins.size(); ++i) {
        auto *pin = new MCUPinsBaseInfo;
        pin->PinNum = i + 2;
        pin->PinName = pins.at(i).first;
        for (const QString &func : pins.at(i).second) {
            auto *sig = new MCUPinSignal;
            sig->Func = func;
            sig->InPin = pin->PinName;
            sig->status = func.startsWith("I2C1") ? SIGNAL_MODE_ONLY : SIGNAL_FREE;
            pin->signalList << sig;
        }
        info.pins << pin;
    }

    ModeOption hext;
    hext.Name = hext.displayName = "HEXT";
    for (const char *name : {"BYPASS Clock Source", "Crystal/Ceramic Resonator"}) {
        ModeSignalGroup group;
        group.Name = group.displayName = name;
        QList<ModeSignal> signalList;
        for (const char *func : {"CRM_HEXT_IN", "CRM_HEXT_OUT"}) {
            if (QString(name).startsWith("BYPASS") && QString(func).endsWith("OUT"))
                continue;
            ModeSignal s;
            s.signalName = func;
            signalList << s;
        }
        group.signalList << signalList;
        hext.signalGroups << group;
    }
    ModeLogic logic("CRM", "CRM", "MQ48T110", "TSSOP");
    logic.build({hext}, {}, &info);
    logic.updateSignalStates(&info);
    ASSERT_EQ(logic.controls.size(), 1);
    ProComboBox box(&logic, 0);
    box.judge();
    auto *model = qobject_cast<QStandardItemModel *>(box.model());
    ASSERT_TRUE(model);
    ASSERT_EQ(box.count(), 3);
    for (int i = 1; i < 3; ++i) {
        EXPECT_FALSE(model->item(i)->flags() & Qt::ItemIsEnabled) << i;
        EXPECT_TRUE(model->item(i)->toolTip().contains("PF0: I2C1_SDA"))
            << qPrintable(model->item(i)->toolTip());
    }

    // With the pins free again the items are offered without a hint.
    for (MCUPinsBaseInfo *pin : info.pins) {
        for (MCUPinSignal *sig : pin->signalList)
            sig->status = SIGNAL_FREE;
    }
    logic.updateSignalStates(&info);
    box.judge();
    EXPECT_TRUE(model->item(2)->flags() & Qt::ItemIsEnabled);
    EXPECT_FALSE(model->item(2)->toolTip().contains("I2C1"));
}

// The interface font ships with the program and stands for "Arial" wherever the machine has
// none, so that every drawing measures its texts in the same font.
TEST(UiFont, TheShippedFontStandsForArial)
{
    ASSERT_TRUE(InstallUiFont());
    QFontDatabase fonts;
    EXPECT_TRUE(fonts.families().contains(UiFontFamily()));
    const QStringList styles = fonts.styles(UiFontFamily());
    for (const char *style : {"Bold", "Oblique"})
        EXPECT_TRUE(styles.contains(style, Qt::CaseInsensitive)) << qPrintable(styles.join(','));
    if (!fonts.families().contains(QStringLiteral("Arial"))) {
        EXPECT_EQ(QFontInfo(QFont(QStringLiteral("Arial"), 9)).family(), UiFontFamily());
    }
    const auto substitutes = [] {
        return QFont::substitutes(QStringLiteral("Arial"))
            .filter(UiFontFamily(), Qt::CaseInsensitive);
    };
    EXPECT_EQ(substitutes().size(), 1);
    // A second call changes nothing.
    EXPECT_TRUE(InstallUiFont());
    EXPECT_EQ(substitutes().size(), 1);
}

// The loading dialog leaves its text clear of the cover picture's emblem on the right and
// its bar clear of the bottom edge.
TEST(LoadingDialog, HasRoomForItsTextBesideTheCover)
{
    QTemporaryDir dir;
    const QString source = testsupport::fixture(QStringLiteral("workform"));
    QDirIterator it(source, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        testsupport::writeFile(dir.path() + file.mid(source.size()), testsupport::readFile(file));
    }
    setAppFolderOverride(dir.path());
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });

    QSize size;
    int textWidth = 0;
    QTimer watch;
    watch.setInterval(0);
    QObject::connect(&watch, &QTimer::timeout, [&] {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            auto *progress = qobject_cast<QProgressDialog *>(w);
            if (progress && progress->isVisible() && size.isEmpty()) {
                size = progress->size();
                textWidth = progress->fontMetrics().horizontalAdvance(progress->labelText());
            }
        }
    });
    watch.start();
    FormConfiguration form;
    EXPECT_TRUE(form.buildDesign("MQ48T110", "MQ48T110FX", "LQFP8"));
    watch.stop();
    setUserMessageHandler({});
    setAppFolderOverride(QString());

    ASSERT_FALSE(size.isEmpty()) << "the loading dialog was never shown";
    // The text is centred; the emblem takes about the right hundred pixels of the cover.
    EXPECT_GE((size.width() - textWidth) / 2, 120) << size.width() << " for " << textWidth;
    EXPECT_GE(size.height(), 100);
}
