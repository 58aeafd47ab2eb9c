#pragma once

#include <UiComponents/EditSession.h>

#include <examples/titlecard/Document.h>

/// Whether the cards of two documents are equal, exactly.
inline bool isSame(const QVector<TitleCard::Card>& one, const QVector<TitleCard::Card>& other)
{
    bool isSame = one.size() == other.size();
    for (int i = 0; isSame && i < one.size(); ++i) {
        isSame = one.at(i).id == other.at(i).id;
        for (auto value = one.at(i).values.cbegin(); value != one.at(i).values.cend(); ++value) {
            isSame = isSame && EditSession::isSame(*value, other.at(i).values.value(value.key()));
        }
    }
    return isSame;
}
