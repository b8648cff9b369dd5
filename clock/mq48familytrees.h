#pragma once

#include "clock/mq48clocktree.h"

// Clock tree of the T510 chips.
class MQ48T510PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T510PLL(QWidget *parent = nullptr);
};

// Clock tree of the T520 chips.
class MQ48T520PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T520PLL(QWidget *parent = nullptr);
};

// Clock tree of the T250 chips.
class MQ48T250PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T250PLL(QWidget *parent = nullptr);
};

// Clock tree of the T260 chips.
class MQ48T260PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T260PLL(QWidget *parent = nullptr);
};

// Clock tree of the V250 chips.
class MQ48V250PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48V250PLL(QWidget *parent = nullptr);
};

// Clock tree of the T310 chips.
class MQ48T310PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T310PLL(QWidget *parent = nullptr);
};

// Clock tree of the T320 chips.
class MQ48T320PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T320PLL(QWidget *parent = nullptr);
};

// Clock tree of the W320 chips.
class MQ48W320PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48W320PLL(QWidget *parent = nullptr);
};

// Clock tree of the T110 chips.
class MQ48T110PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T110PLL(QWidget *parent = nullptr);
};

// Clock tree of the T120 chips.
class MQ48T120PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T120PLL(QWidget *parent = nullptr);
};

// Clock tree of the T130 chips.
class MQ48T130PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T130PLL(QWidget *parent = nullptr);
};

// Clock tree of the V130 chips.
class MQ48V130PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48V130PLL(QWidget *parent = nullptr);
};

// Clock tree of the T220 chips.
class MQ48T220PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T220PLL(QWidget *parent = nullptr);
};

// Clock tree of the T210 chips.
class MQ48T210PLL : public MQ48ClockTree
{
    Q_OBJECT
public:
    explicit MQ48T210PLL(QWidget *parent = nullptr);
};

// The tree of a model ordinal, or nullptr for a model without one (T230, T050, unknown).
MQ48ClockTree *createClockTree(int mcuModel, QWidget *parent = nullptr);
