#include "app/versionabout.h"

#include "app/version.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

VersionAbout::VersionAbout(QWidget *parent) : QDialog(parent)
{
    setModal(true);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    m_logo = new QLabel(this);
    const QPixmap logo(QStringLiteral(":/image/Velmora_log.png"));
    if (!logo.isNull())
        m_logo->setPixmap(logo.scaledToHeight(64, Qt::SmoothTransformation));
    m_logo->setAlignment(Qt::AlignCenter);

    m_title = new QLabel(this);
    m_title->setFont(QFont(QStringLiteral("Arial"), 12, QFont::Bold));
    m_version = new QLabel(this);
    m_version->setFont(QFont(QStringLiteral("Arial"), 10));
    m_maker = new QLabel(this);
    m_maker->setFont(QFont(QStringLiteral("Arial"), 10));

    auto *texts = new QVBoxLayout;
    texts->addWidget(m_title);
    texts->addWidget(m_version);
    texts->addWidget(m_maker);
    texts->addStretch();

    auto *row = new QHBoxLayout;
    row->addWidget(m_logo);
    row->addSpacing(16);
    row->addLayout(texts, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(buttons);

    retranslate();
}

void VersionAbout::retranslate()
{
    setWindowTitle(tr("About"));
    m_title->setText(QStringLiteral(MQ48_VERSION_TITLE));
    m_version->setText(tr("Version: %1").arg(QStringLiteral(MQ48_VERSION_SHORT)));
    m_maker->setText(tr("Velmora Technology"));
}

QString VersionAbout::titleText() const
{
    return m_title->text();
}

QString VersionAbout::versionText() const
{
    return m_version->text();
}

QString VersionAbout::makerText() const
{
    return m_maker->text();
}
