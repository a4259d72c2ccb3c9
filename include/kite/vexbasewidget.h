#pragma once

#include "kite/export.h"
#include "kite/vexcontentbase.h"

#include "helm/basecontentwidget.h"

#include <QString>
#include <QWidget>

namespace kite {

/// What the program editor sees of an instruction's editor: it hands the editor's calls on to a VexContentBase inside.
///
/// Plugins make none: VexManager does, whenever the program editor asks for one.
///
/// | call           | with content                | without                                      |
/// |----------------|-----------------------------|----------------------------------------------|
/// | FillWith()     | the content's               | nothing                                      |
/// | ToString()     | the content's               | an empty line                                |
/// | CheckInsert()  | the content's               | true                                         |
/// | CheckReplace() | the content's               | CheckInsert() of this object, which a class  |
/// |                |                             | derived from it may have overridden          |
///
/// Take care: without content everything is accepted, and the line is empty. That is so when the factory returned null,
/// and from then on when the content is deleted before this widget. What comes of it is the program editor's affair.
/// This pendant's refuses the empty line of a factory that returned null, and says so. Of a content that was deleted it
/// writes nothing, and the message list names it.
///
/// User-interface thread only.
/// \since 0.1
class KITE_EXPORT VexBaseWidget : public helm::BaseContentWidget {
    Q_OBJECT

public:
    /// Becomes the parent of `content` and shows it, alone, in a horizontal layout with the style's margins. The parent
    /// is all that ties them: whoever gives the content another parent afterwards takes it away from here, and the
    /// calls still reach it there.
    ///
    /// \param content null for a widget that stays empty and has no layout
    /// \param parent  owns this widget
    VexBaseWidget(VexContentBase* content, QWidget* parent);
    ~VexBaseWidget() override;

    void FillWith(const QString& line) override;
    /// Writes the debug message "<kite> VexBaseWidget::ToString()" (category "default") each time, before it asks the
    /// content.
    QString ToString() override;
    bool CheckInsert() override;
    bool CheckReplace() override;

private:
    Q_DISABLE_COPY(VexBaseWidget)

    // Null without content, and once the content is deleted.
    VexContentBase* content = nullptr;
};

} // namespace kite
