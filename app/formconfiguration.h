#pragma once

#include <QWidget>

class QTranslator;

// The window of an open design: owns every panel of the design and relays their signals.
class FormConfiguration : public QWidget
{
    Q_OBJECT
public:
    explicit FormConfiguration(QWidget *parent = nullptr);

    // The process's translator, kept for language changes made inside the form.
    void setTranslator(QTranslator *translator);
    // Builds the design of a device from the database; false when it can't be built.
    bool buildDesign(const QString &series, const QString &device, const QString &package);
    // Re-labels the menus and actions after a language change.
    void retranslateMenu();

signals:
    // Emitted when the form closes and the start page should come back.
    void formClosed();

private:
    QTranslator *m_translator = nullptr;
};
