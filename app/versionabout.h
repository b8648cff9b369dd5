#pragma once

#include <QDialog>

class QLabel;

// The modal "About" box of the work form: logo, program name with version, and the maker.
class VersionAbout : public QDialog
{
    Q_OBJECT
public:
    explicit VersionAbout(QWidget *parent = nullptr);

    // Sets the texts again in the current language.
    void retranslate();

    // The texts as shown, for whoever needs to read them back.
    QString titleText() const;
    QString versionText() const;
    QString makerText() const;

private:
    QLabel *m_logo = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_version = nullptr;
    QLabel *m_maker = nullptr;
};
