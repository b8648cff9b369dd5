#include "tests/app/appfolder.h"

#include "database/language.h"
#include "database/paths.h"
#include "tests/common/testsupport.h"
#include "widgets/messagebox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

namespace {

void copyTree(const QString &from, const QString &to)
{
    QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::copy(source, target);
    }
}

} // namespace

TempAppFolder::TempAppFolder() : m_savedLanguage(g_language)
{
    copyTree(testsupport::fixture(QStringLiteral("app/MQ48DB")),
             m_dir.path() + QStringLiteral("/MQ48DB"));
    setAppFolderOverride(m_dir.path());
}

TempAppFolder::~TempAppFolder()
{
    setAppFolderOverride(QString());
    g_language = m_savedLanguage;
}

ShippedDatabase::ShippedDatabase()
{
    setUserMessageHandler([this](QWidget *, const UserMessage &m) {
        messages << m.text;
        return 0;
    });
}

ShippedDatabase::~ShippedDatabase()
{
    setUserMessageHandler({});
}

void ModalCatcher::arm(const QStringList &buttons)
{
    // Polls, since each box appears only inside the event loop of the code under test.
    m_buttons = buttons;
    m_timer = std::make_unique<QTimer>();
    m_timer->setInterval(20);
    QObject::connect(m_timer.get(), &QTimer::timeout, [this]() {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || m_buttons.isEmpty())
            return;
        titles << box->windowTitle();
        texts << box->text();
        const QString wanted = m_buttons.takeFirst();
        if (m_buttons.isEmpty())
            m_timer->stop();
        for (QAbstractButton *button : box->buttons()) {
            if (button->text() == wanted) {
                button->click();
                return;
            }
        }
        box->reject();
    });
    m_timer->start();
}
