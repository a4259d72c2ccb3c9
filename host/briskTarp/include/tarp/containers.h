#pragma once

#include "brisk/export.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>

namespace tarp {

/// The area in the middle of the pendant that shows one page at a time.
class BRISK_EXPORT CenterWidget : public QWidget {
    Q_OBJECT

public:
    explicit CenterWidget(QWidget* parent = nullptr);
    ~CenterWidget() override;

    /// Adds `page` under `key` for the module `sender`; the container becomes its parent. False for null or a key that
    /// is taken, and nothing changes then.
    bool addPage(QObject* sender, const QString& key, QWidget* page);
    /// Takes the page of `key` out. With `deleteWidget` it is deleted, otherwise it is handed back without a parent.
    /// False when there is no such page.
    bool removeItem(QObject* sender, const QString& key, bool deleteWidget);
    /// Shows the page of `key`; false when there is none.
    bool switchTo(QObject* sender, const QString& key);
    /// The key of the page that is shown; empty when none is.
    QString current() const;
    QStringList keys() const;
    QWidget* page(const QString& key) const;
    /// The module that added the page of `key`; null when it is gone or there is no such page.
    QObject* owner(const QString& key) const;

signals:
    /// Another page is shown; `key` is empty when none is left.
    void currentChanged(const QString& key, const QString& previous);
    void pageRemoved(const QString& key);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The bar at the top of the pendant: a row of keyed items.
class BRISK_EXPORT StatusBar : public QWidget {
    Q_OBJECT

public:
    explicit StatusBar(QWidget* parent = nullptr);
    ~StatusBar() override;

    /// Appends `item` under `key`; `stretch` lets it take the free room. False for null or a key that is taken.
    bool addItem(QObject* sender, const QString& key, QWidget* item, int stretch = 0);
    /// Inserts `item` before the item named `beforeKey`; the bar becomes its parent. False, and nothing changes, for
    /// null, for an item that stands in the bar already, for a `key` that is taken and for a `beforeKey` that is not
    /// there.
    bool addBeforeItem(QObject* sender, const QString& key, const QString& beforeKey, QWidget* item);
    /// The keys from left to right.
    QStringList keys() const;
    QWidget* item(const QString& key) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The side bar at the right: keyed pages of which one is shown; hidden until someone shows it.
class BRISK_EXPORT ExpandSideBar : public QWidget {
    Q_OBJECT

public:
    explicit ExpandSideBar(QWidget* parent = nullptr);
    ~ExpandSideBar() override;

    /// Adds `page` under `key`; the side bar becomes its parent. False for null or a key that is taken.
    bool addPage(QObject* sender, const QString& key, QWidget* page);
    /// Makes the page of `key` the current one; false when there is none. Does not show the side bar.
    bool switchTo(QObject* sender, const QString& key);
    QString current() const;
    QStringList keys() const;
    QWidget* page(const QString& key) const;
    QObject* owner(const QString& key) const;

signals:
    void currentChanged(const QString& key);
    /// The set of pages changed.
    void pagesChanged();
    /// The side bar was shown or hidden.
    void openChanged(bool open);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace tarp

/// The pendant's centre widget; null before it is made and after it is gone.
BRISK_EXPORT tarp::CenterWidget* instantiatedCenterWidget();
/// The pendant's status bar; null when there is none. `sender` is who asks.
BRISK_EXPORT tarp::StatusBar* instantiatedStatusBar(QObject* sender);
/// The pendant's right-hand side bar; null when there is none. `sender` is who asks.
BRISK_EXPORT tarp::ExpandSideBar* instantiatedRightExpandSideWidget(QObject* sender = nullptr);
