#pragma once

#include <QBoxLayout>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace tarp {

/// The keyed pages of a container, of which at most one is shown.
class ContainerPages : public QObject {
    Q_OBJECT

public:
    explicit ContainerPages(QWidget* container);

    bool add(QObject* sender, const QString& key, QWidget* page);
    /// Forgets the page of `key` and hands it back hidden; null when there is none.
    QWidget* take(const QString& key);
    bool contains(const QString& key) const;
    QStringList keys() const;
    QWidget* page(const QString& key) const;
    QObject* owner(const QString& key) const;

    const QString& current() const { return m_current; }
    /// Hides what is shown and shows the page of `key`, nothing for an empty key.
    void show(const QString& key);
    /// Among the pages that are left the one that was shown last, else the first; empty when there is none.
    QString lastShown() const;

signals:
    /// The page was deleted from outside and is forgotten.
    void lost(const QString& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Page {
        QString key;
        QWidget* widget;
        QPointer<QObject> sender;
    };

    const Page* find(const QString& key) const;
    void forget(const QString& key);
    void lose(QObject* widget);

    QWidget* m_container;
    QVBoxLayout* m_layout;
    QList<Page> m_pages;
    QString m_current;
    QStringList m_shown; ///< oldest first
};

/// The living containers of one kind, the newest last.
template <typename Container> QList<Container*>& livingContainers() {
    static auto* containers = new QList<Container*>;
    return *containers;
}

template <typename Container> Container* newestContainer() {
    const QList<Container*>& containers = livingContainers<Container>();
    return containers.isEmpty() ? nullptr : containers.last();
}

} // namespace tarp
