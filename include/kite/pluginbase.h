#pragma once

#include "kite/export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace kite {

/// The base of every plugin.
///
/// Derive from it, override the operations you need and register the class with KITE_PLUGIN. The pendant makes one
/// object of it as a child of the plugin's module (see Kite) and calls it on the user-interface thread:
///
///     constructor -> init -> afterInit -> ( render -> idle )* -> detach -> destructor
///
/// An exception that leaves one of these calls, save the destructor, is shown in the pendant's message list under the
/// plugin's name, and the pendant goes on with the next plugin. After one from the constructor or init() the plugin
/// gets no more calls.
///
/// \since 0.1
class KITE_EXPORT PluginBase : public QObject {
    Q_OBJECT

public:
    /// \param parent the plugin's module, which owns this object; hand it on from your creator
    explicit PluginBase(QObject* parent = nullptr);
    ~PluginBase() override;

    /// The plugin's page and its navigation entry are there; make your widgets here.
    virtual void init();
    /// Every plugin has been initialised.
    virtual void afterInit();
    /// The plugin's page comes into view.
    virtual void render();
    /// The plugin's page has been left.
    virtual void idle();
    /// The pendant is closing; the last call before the destructor. The plugin's module is whole here, and no longer in
    /// the destructor.
    virtual void detach();

    /// Whether the plugin's page gets the pendant's style sheet each time it is shown; true unless set otherwise. A
    /// page that got it once keeps it, and gets each later one: set this before the page is first shown.
    void setDefaultGlobalSheet(bool on);
    bool getDefaultGlobalSheet() const;

    /// The title of the plugin's navigation entry, read before init(): set it in the constructor. While it is empty,
    /// the entry shows the plugin's name.
    void setPluginLabel(const QString& label);
    QString getPluginLabel() const;

private:
    Q_DISABLE_COPY(PluginBase)
    class PluginBasePrivate;
    std::unique_ptr<PluginBasePrivate> d;
};

} // namespace kite
