#include "clock/mq48familytrees.h"

MQ48T510PLL::MQ48T510PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T510, parent)
{
}

MQ48T520PLL::MQ48T520PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T520, parent)
{
}

MQ48T250PLL::MQ48T250PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T250, parent)
{
}

MQ48T260PLL::MQ48T260PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T260, parent)
{
}

MQ48V250PLL::MQ48V250PLL(QWidget *parent) : MQ48ClockTree(ClockModel::V250, parent)
{
}

MQ48T310PLL::MQ48T310PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T310, parent)
{
}

MQ48T320PLL::MQ48T320PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T320, parent)
{
}

MQ48W320PLL::MQ48W320PLL(QWidget *parent) : MQ48ClockTree(ClockModel::W320, parent)
{
}

MQ48T110PLL::MQ48T110PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T110, parent)
{
}

MQ48T120PLL::MQ48T120PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T120, parent)
{
}

MQ48T130PLL::MQ48T130PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T130, parent)
{
}

MQ48V130PLL::MQ48V130PLL(QWidget *parent) : MQ48ClockTree(ClockModel::V130, parent)
{
}

MQ48T220PLL::MQ48T220PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T220, parent)
{
}

MQ48T210PLL::MQ48T210PLL(QWidget *parent) : MQ48ClockTree(ClockModel::T210, parent)
{
}

MQ48ClockTree *createClockTree(int mcuModel, QWidget *parent)
{
    switch (mcuModel) {
    case ClockModel::T510:
        return new MQ48T510PLL(parent);
    case ClockModel::T520:
        return new MQ48T520PLL(parent);
    case ClockModel::T250:
        return new MQ48T250PLL(parent);
    case ClockModel::T260:
        return new MQ48T260PLL(parent);
    case ClockModel::V250:
        return new MQ48V250PLL(parent);
    case ClockModel::T310:
        return new MQ48T310PLL(parent);
    case ClockModel::T320:
        return new MQ48T320PLL(parent);
    case ClockModel::W320:
        return new MQ48W320PLL(parent);
    case ClockModel::T110:
        return new MQ48T110PLL(parent);
    case ClockModel::T120:
        return new MQ48T120PLL(parent);
    case ClockModel::T130:
        return new MQ48T130PLL(parent);
    case ClockModel::V130:
        return new MQ48V130PLL(parent);
    case ClockModel::T220:
        return new MQ48T220PLL(parent);
    case ClockModel::T210:
        return new MQ48T210PLL(parent);
    default:
        return nullptr;
    }
}
