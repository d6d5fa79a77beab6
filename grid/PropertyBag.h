#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

// The saved design-time state of a control: an ordered list of key and value pairs.
// A value equal to its default is not stored, so a bag holds only what differs from a fresh
// control, and reading a missing key gives the default back.
class PropertyBag
{
public:
    // Stores value under key, or removes the key when value equals defaultValue.
    void WriteProperty(const QString &key, const QVariant &value, const QVariant &defaultValue);
    // The stored value, or defaultValue when the key is missing.
    QVariant ReadProperty(const QString &key, const QVariant &defaultValue) const;

    // The same as ReadProperty, converted; defaultValue when the stored value does not convert.
    int readInt(const QString &key, int defaultValue) const;
    quint32 readUInt(const QString &key, quint32 defaultValue) const;
    bool readBool(const QString &key, bool defaultValue) const;
    QString readString(const QString &key, const QString &defaultValue) const;

    bool contains(const QString &key) const { return indexOf(key) >= 0; }
    // Keys in the order they were first written.
    QStringList keys() const;
    int count() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.isEmpty(); }

private:
    int indexOf(const QString &key) const;

    QList<QPair<QString, QVariant>> m_items;
};
