#pragma once

#include <QCommandLinkButton>

class QMouseEvent;

// A row of the recent-design list: reports the press of the left or right mouse button
// instead of the usual click.
class CustomCommandLinkButton : public QCommandLinkButton
{
    Q_OBJECT
public:
    explicit CustomCommandLinkButton(const QString &text, QWidget *parent = nullptr);

signals:
    void leftButtonClicked();
    void rightButtonClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
};
