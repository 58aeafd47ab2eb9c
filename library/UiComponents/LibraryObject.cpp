#include "LibraryObject.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

class Owner
{
public:
    Owner() = default;
    ~Owner() { delete m_object; }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    QObject* object()
    {
        // It may have been deleted with an earlier application.
        if (!m_object) {
            m_object = new QObject(QCoreApplication::instance());
        }
        return m_object;
    }

private:
    QPointer<QObject> m_object;
};

} // namespace

QObject* libraryObject()
{
    static Owner owner;
    return owner.object();
}
