#include "app/customcommandlinkbutton.h"
#include "app/mainwindow.h"
#include "app/recentdesigns.h"
#include "database/language.h"
#include "tests/app/appfolder.h"
#include "tests/common/testsupport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QTranslator>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

template <typename T> T *child(const QWidget &w, const char *name)
{
    T *found = w.findChild<T *>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

QList<CustomCommandLinkButton *> recentRows(const MainWindow &w)
{
    QList<CustomCommandLinkButton *> rows;
    for (CustomCommandLinkButton *b : w.findChildren<CustomCommandLinkButton *>()) {
        if (!b->isHidden())
            rows << b;
    }
    return rows;
}

void press(QWidget *w, Qt::MouseButton button)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &event);
}

class StartPage : public ::testing::Test
{
protected:
    TempAppFolder folder;
};

TEST_F(StartPage, SeriesAndDeviceBoxesFollowTheCatalogue)
{
    g_language = 0;
    MainWindow w;
    w.setLanguage(0);
    auto *series = child<QComboBox>(w, "serialComboBox");
    auto *device = child<QComboBox>(w, "deviceComboBox");
    auto *package = child<QLineEdit>(w, "packageLineEdit");
    auto *flash = child<QLineEdit>(w, "flashLineEdit");
    auto *sram = child<QLineEdit>(w, "sramLineEdit");
    auto *browser = child<QTextBrowser>(w, "infoBrowser");

    ASSERT_EQ(series->count(), 3);
    EXPECT_EQ(series->itemText(2), QStringLiteral("MQ48T999"));
    EXPECT_EQ(series->itemData(0, Qt::ToolTipRole).toString(),
              QStringLiteral("High performance series"));
    ASSERT_EQ(device->count(), 2);
    EXPECT_EQ(package->text(), QStringLiteral("LQFP100"));
    EXPECT_EQ(flash->text(), QStringLiteral("1024 KB"));
    EXPECT_EQ(sram->text(), QStringLiteral("384 KB"));
    EXPECT_EQ(browser->source(),
              QUrl::fromLocalFile(folder.file("MQ48DB/device/MQ48T510/MQ48T510_Info_EN.htm")));
    EXPECT_TRUE(browser->toPlainText().contains(QStringLiteral("English description")));

    device->setCurrentIndex(1);
    EXPECT_EQ(package->text(), QStringLiteral("LQFP64"));
    EXPECT_EQ(sram->text(), QStringLiteral("Default: 96 KB    Max: 224 KB"));

    series->setCurrentIndex(1);
    ASSERT_EQ(device->count(), 1);
    EXPECT_EQ(device->currentText(), QStringLiteral("MQ48T110K8U7"));
    EXPECT_EQ(package->text(), QStringLiteral("QFN32"));
    // A series without a description page shows nothing rather than the previous page.
    EXPECT_TRUE(browser->toPlainText().isEmpty());

    // A series without devices clears the fields.
    series->setCurrentIndex(2);
    EXPECT_EQ(device->count(), 0);
    EXPECT_EQ(device->currentIndex(), -1);
    EXPECT_TRUE(package->text().isEmpty());
    EXPECT_TRUE(flash->text().isEmpty());
    EXPECT_TRUE(sram->text().isEmpty());
    // Starting a design from it must not crash: the work form opens on an empty package.
    w.show();
    child<QPushButton>(w, "newDesignButton")->click();
    EXPECT_FALSE(w.isVisible());
}

TEST_F(StartPage, SectionsFoldSoThatOneAtMostIsOpen)
{
    MainWindow w;
    w.show();
    auto *newHeader = child<QPushButton>(w, "newSectionHeader");
    auto *recentHeader = child<QPushButton>(w, "recentSectionHeader");
    auto *device = child<QComboBox>(w, "deviceComboBox");
    auto *open = child<QPushButton>(w, "openButton");
    EXPECT_TRUE(device->isVisible());
    EXPECT_FALSE(open->isVisible());

    child<QPushButton>(w, "openSectionHeader")->click();
    EXPECT_FALSE(device->isVisible());
    EXPECT_TRUE(open->isVisible());
    recentHeader->click();
    EXPECT_FALSE(open->isVisible());
    recentHeader->click(); // folds the open one: nothing open
    EXPECT_FALSE(open->isVisible());
    EXPECT_FALSE(device->isVisible());
    newHeader->click();
    EXPECT_TRUE(device->isVisible());
}

TEST_F(StartPage, TheBuiltLabelDiffersFromTheRelabelledOne)
{
    MainWindow w;
    auto *label = child<QLabel>(w, "serialLabel");
    EXPECT_EQ(label->text(), QStringLiteral("Devie Serials:"));
    w.retranslatePage();
    EXPECT_EQ(label->text(), QStringLiteral("Device Serials:"));
}

TEST_F(StartPage, LanguageSwitchRelabelsAndWritesTheSetting)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/image/tr_en.qm")));
    QCoreApplication::installTranslator(&translator);
    QTranslator chinese;
    ASSERT_TRUE(chinese.load(QStringLiteral(":/image/tr_zh.qm")));
    const QString chineseHeader = chinese.translate("MainWindow", "Start a new Design");
    ASSERT_FALSE(chineseHeader.isEmpty());

    MainWindow w;
    w.setLanguage(0);
    w.setTranslator(&translator);
    const QString config = folder.file("config.xml");
    auto *language = child<QComboBox>(w, "languageComboBox");
    auto *header = child<QPushButton>(w, "newSectionHeader");
    auto *browser = child<QTextBrowser>(w, "infoBrowser");
    EXPECT_EQ(header->text(), QStringLiteral("Start a new Design"));
    EXPECT_FALSE(QFile::exists(config));

    language->setCurrentIndex(1);
    EXPECT_EQ(g_language, 1);
    EXPECT_EQ(header->text(), chineseHeader);
    EXPECT_EQ(child<QLabel>(w, "serialLabel")->text(),
              chinese.translate("MainWindow", "Device Serials:"));
    EXPECT_EQ(language->itemText(0), chinese.translate("MainWindow", "English"));
    EXPECT_EQ(browser->source().fileName(), QStringLiteral("MQ48T510_Info_CH.htm"));
    EXPECT_EQ(child<QComboBox>(w, "serialComboBox")->itemData(0, Qt::ToolTipRole).toString(),
              QString::fromUtf8("高性能系列"));
    QDomDocument doc;
    ASSERT_TRUE(doc.setContent(testsupport::readFile(config)));
    const QDomElement root = doc.documentElement();
    EXPECT_EQ(root.tagName(), QStringLiteral("Configuration"));
    EXPECT_EQ(root.childNodes().count(), 1);
    EXPECT_EQ(root.firstChildElement(QStringLiteral("Language")).text(), QStringLiteral("UI_CH"));

    child<QComboBox>(w, "deviceComboBox")->setCurrentIndex(1);
    EXPECT_TRUE(child<QLineEdit>(w, "sramLineEdit")
                    ->text()
                    .startsWith(chinese.translate("DeviceSelection", "Default: ")));

    language->setCurrentIndex(0);
    EXPECT_EQ(g_language, 0);
    EXPECT_EQ(header->text(), QStringLiteral("Start a new Design"));
    EXPECT_EQ(child<QLineEdit>(w, "sramLineEdit")->text(),
              QStringLiteral("Default: 96 KB    Max: 224 KB"));
    EXPECT_TRUE(testsupport::readFile(config).contains("<Language>UI_EN</Language>"));

    // Choosing the language already in force leaves the file alone.
    QFile::remove(config);
    w.Language_ComboBox_IndexChanged(0);
    EXPECT_FALSE(QFile::exists(config));

    QCoreApplication::removeTranslator(&translator);
}

TEST_F(StartPage, RecentDesignsListOpensAndDeletesEntries)
{
    const QString gone = folder.file("gone.MQPF");
    const QString kept = folder.file("kept.MQPF");
    ASSERT_TRUE(WriteRecentDesigns(RecentDesignsPath(), {gone, kept}));
    g_language = 0;
    MainWindow w;
    w.show();
    child<QPushButton>(w, "recentSectionHeader")->click();
    QList<CustomCommandLinkButton *> rows = recentRows(w);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]->text(), gone);

    // A design whose file has gone: the message, and the entry stays.
    ModalCatcher missing;
    missing.arm({QStringLiteral("Ok")});
    press(rows[0], Qt::LeftButton);
    EXPECT_EQ(missing.titles, QStringList({QStringLiteral("Error")}));
    EXPECT_EQ(missing.texts, QStringList({QStringLiteral("File is not exists!")}));
    EXPECT_EQ(recentRows(w).size(), 2);
    EXPECT_EQ(GetRecentDesigns().size(), 2);

    // An existing file is confirmed first; "Cancel" opens nothing.
    ASSERT_TRUE(testsupport::writeFile(kept, "<Root/>"));
    ModalCatcher cancelled;
    cancelled.arm({QStringLiteral("Cancel")});
    press(rows[1], Qt::LeftButton);
    EXPECT_EQ(cancelled.titles, QStringList({QStringLiteral("Information")}));
    EXPECT_EQ(cancelled.texts,
              QStringList({QStringLiteral("Are you sure to open this design file?")}));

    // A confirmed design without device information is refused, and the page stays.
    ModalCatcher refused;
    refused.arm({QStringLiteral("Yes"), QStringLiteral("Ok")});
    press(rows[1], Qt::LeftButton);
    ASSERT_EQ(refused.texts.size(), 2);
    EXPECT_EQ(refused.texts[1], QStringLiteral("Open file error, can not get MCU information!"));
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(GetRecentDesigns().size(), 2);

    // The context menu's "Delete" removes the row and the entry.
    QTimer::singleShot(50, []() {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 1);
        EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("Delete"));
        menu->actions().first()->trigger();
        menu->close();
    });
    press(rows[0], Qt::RightButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(recentRows(w).size(), 1);
    EXPECT_EQ(GetRecentDesigns(), QStringList({kept}));
}

TEST(StartPageCatalogue, MissingCatalogueLeavesEmptyBoxes)
{
    TempAppFolder folder;
    QFile::remove(folder.file("MQ48DB/MCUList.xml"));
    MainWindow w;
    EXPECT_EQ(child<QComboBox>(w, "serialComboBox")->count(), 0);
    EXPECT_EQ(child<QComboBox>(w, "deviceComboBox")->count(), 0);
    child<QPushButton>(w, "newDesignButton")->click();
}

} // namespace
