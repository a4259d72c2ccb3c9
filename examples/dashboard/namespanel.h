#pragma once

#include "groupedlist.h"

class LiveState;

/// What a motion instruction can refer to.
class NamesPanel : public GroupedList {
    Q_OBJECT

public:
    explicit NamesPanel(LiveState* live);

private:
    void readAgain();
};
