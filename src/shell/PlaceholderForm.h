#pragma once

#include "platform/ui/Form.h"

// An empty window standing in for a window of a later subsystem: it has that window's name and
// is opened with that window's modality, so that the menus of the main window already lead
// somewhere. Each is replaced by the real window when its subsystem is built.
class PlaceholderForm : public ui::Form {
    Q_OBJECT

public:
    explicit PlaceholderForm(const QString& name);

    // The one placeholder of that name, created and loaded on first use, like the form it
    // stands for.
    static PlaceholderForm& Instance(const char* name);
};
