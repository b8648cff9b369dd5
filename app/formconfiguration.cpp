#include "app/formconfiguration.h"

FormConfiguration::FormConfiguration(QWidget *parent) : QWidget(parent) {}

void FormConfiguration::setTranslator(QTranslator *translator)
{
    m_translator = translator;
}

bool FormConfiguration::buildDesign(const QString &, const QString &, const QString &)
{
    return false;
}

void FormConfiguration::retranslateMenu() {}
