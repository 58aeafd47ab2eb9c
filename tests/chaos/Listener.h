#pragma once

#include "World.h"

/**
 * A host's slots for all signals of a part, and the mischief that they do.
 */
class Listener : public QObject
{
public:
    Listener(World& world, QObject* sender);
    ~Listener() override;

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    enum class Deed {
        Nothing,
        Loop,
        MessageBox,
        DeleteSender,
        DeleteParent,
        DeleteWindow,
        DeleteSibling,
        DeleteOther, ///< a picker, a target, a model
        Hide,
        Disable,
        Move,
        Call,
        Make,
    };
    struct Slot
    {
        QByteArray signal;
        Deed deed = Deed::Nothing;
        int at = 1;          ///< the how manieth signal
        bool now = false;    ///< deletes at once
        bool inLoop = false; ///< ... in the middle of an event loop
        int heard = 0;
    };

    void hear(int index);
    void perform(Slot slot);
    QObject* victim(Deed deed) const;

    World& m_world;
    const QPointer<QObject> m_sender;
    const QMetaObject* const m_type;
    QVector<Slot> m_slots;
};
