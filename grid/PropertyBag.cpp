#include "PropertyBag.h"

#include <QStringList>

void PropertyBag::WriteProperty(const QString &key, const QVariant &value,
                                const QVariant &defaultValue)
{
    const int index = indexOf(key);
    if (value == defaultValue) {
        if (index >= 0)
            m_items.removeAt(index);
        return;
    }
    if (index >= 0)
        m_items[index].second = value;
    else
        m_items.append({ key, value });
}

QVariant PropertyBag::ReadProperty(const QString &key, const QVariant &defaultValue) const
{
    const int index = indexOf(key);
    return index >= 0 ? m_items.at(index).second : defaultValue;
}

int PropertyBag::readInt(const QString &key, int defaultValue) const
{
    bool ok = false;
    const int value = ReadProperty(key, defaultValue).toInt(&ok);
    return ok ? value : defaultValue;
}

quint32 PropertyBag::readUInt(const QString &key, quint32 defaultValue) const
{
    bool ok = false;
    const quint32 value = ReadProperty(key, defaultValue).toUInt(&ok);
    return ok ? value : defaultValue;
}

bool PropertyBag::readBool(const QString &key, bool defaultValue) const
{
    const QVariant value = ReadProperty(key, defaultValue);
    return value.canConvert<bool>() ? value.toBool() : defaultValue;
}

QString PropertyBag::readString(const QString &key, const QString &defaultValue) const
{
    const QVariant value = ReadProperty(key, defaultValue);
    return value.canConvert<QString>() ? value.toString() : defaultValue;
}

QStringList PropertyBag::keys() const
{
    QStringList result;
    for (const auto &item : m_items)
        result.append(item.first);
    return result;
}

int PropertyBag::indexOf(const QString &key) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i).first == key)
            return i;
    }
    return -1;
}
