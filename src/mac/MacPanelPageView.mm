#include "mac/MacPanelPageView.hpp"

#include <memory>
#include <string>

#include "base/Subscription.hpp"
#include "mac/MacSettingsPageView.hpp"
#include "mac/MacViews.hpp"

namespace {

struct PanelPageState {
    quorvane::PanelContent::Page page;
    std::string layout;
    quorvane::Subscription changes;
};

}  // namespace

// unconfirmed: check on a Mac first. NSTrackingArea's options and the mouseEntered:/mouseExited:
// overrides are written from Apple's reference, not from the fact sheet.
@implementation QVPanelPageView {
    std::unique_ptr<PanelPageState> _state;
    QVSettingsPageView* _content;
}

- (instancetype)initWithPage:(quorvane::PanelContent::Page)page {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _state = std::make_unique<PanelPageState>();
    _state->page = std::move(page);
    [self rebuild];
    if (_state->page.source) {
        __weak QVPanelPageView* weakSelf = self;
        // Subscribed after the page view, so it has re-read its bindings before this looks.
        _state->changes = _state->page.source->subscribe([weakSelf] { [weakSelf sourceChanged]; });
    }
    if (_state->page.pointerInside) {
        NSTrackingArea* area =
            [[NSTrackingArea alloc] initWithRect:NSZeroRect
                                         options:NSTrackingMouseEnteredAndExited |
                                                 NSTrackingActiveAlways | NSTrackingInVisibleRect
                                           owner:self
                                        userInfo:nil];
        [self addTrackingArea:area];
    }
    return self;
}

- (void)rebuild {
    const auto& page = _state->page;
    _state->layout = page.layout();
    [_content removeFromSuperview];
    _content = [[QVSettingsPageView alloc] initWithPage:page.build()
                                                 source:page.source
                                                  width:page.width];
    _content.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 12);
    [self addSubview:_content];
    quorvane::pinEdges(_content, self, 0);
}

- (void)sourceChanged {
    if (_state->page.needsRebuild(_state->layout)) {
        [self rebuild];
    }
}

- (void)mouseEntered:(NSEvent*)event {
    _state->page.pointerInside(true);
}

- (void)mouseExited:(NSEvent*)event {
    _state->page.pointerInside(false);
    [self sourceChanged];
}

@end
