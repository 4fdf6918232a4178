#pragma once

#include "mac/MacFrameworks.h"
#include "ui/SettingsPage.hpp"

namespace quorvane {
class Observable;
}

// Draws any settings page: every row kind of the vocabulary, once, for every tool. The view
// owns the page, so the rows' bindings live exactly as long as their controls. When `source`
// publishes, every control reads its binding again.
@interface QVSettingsPageView : NSStackView
- (instancetype)initWithPage:(quorvane::SettingsPage)page
                      source:(const quorvane::Observable*)source
                       width:(CGFloat)width;
- (void)refresh;
// Stops any shortcut recorder on the page that is listening.
- (void)stopRecording;
@end
