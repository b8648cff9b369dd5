#pragma once

#include <QLabel>

// A label that carries a name and a status and reports a click with both.
class ProLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ProLabel(const QString &text = QString(), QWidget *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    int status() const { return m_status; }
    void setStatus(int status) { m_status = status; }

signals:
    void clicked(QString name, int status);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QString m_name;
    int m_status = 0;
};
