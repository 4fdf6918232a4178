#include "mac/MacPorts.hpp"

#include <memory>
#include <string>

#include "base/CallIfSet.hpp"
#include "mac/MacFloatingWindow.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"
#include "mac/MacViewNode.hpp"
#include "mac/MacViews.hpp"

// unconfirmed: check on a Mac first. Of the AppKit below only the panel's initializer, its
// style mask, backing, window levels and collection behaviour values are in the fact sheet.
// canBecomeKeyWindow, makeKeyWindow, makeFirstResponder:, NSTableView and its data source and
// delegate, NSTrackingArea, NSTextField's delegate and the did-resign-key notification were
// written from Apple's reference.

using quorvane::ListPanel;
using quorvane::ListPanelContent;

// A borderless panel refuses key status unless it says otherwise; this one takes it, so the
// search field receives typing while the app the user is in stays active.
@interface QVKeyablePanel : NSPanel
@end

@implementation QVKeyablePanel
- (BOOL)canBecomeKeyWindow {
    return YES;
}
- (BOOL)canBecomeMainWindow {
    return NO;
}
@end

// Reports the row under a moving mouse; AppKit sends mouse-moved events only to views that ask
// for them with a tracking area.
@interface QVHoverTableView : NSTableView
@property(nonatomic, copy) void (^onHover)(NSInteger row);
@end

@implementation QVHoverTableView
- (void)updateTrackingAreas {
    [super updateTrackingAreas];
    for (NSTrackingArea* area in self.trackingAreas) {
        if (area.owner == self) {
            [self removeTrackingArea:area];
        }
    }
    [self addTrackingArea:[[NSTrackingArea alloc]
                              initWithRect:NSZeroRect
                                   options:NSTrackingMouseMoved | NSTrackingActiveAlways |
                                           NSTrackingInVisibleRect
                                     owner:self
                                  userInfo:nil]];
}
- (void)mouseMoved:(NSEvent*)event {
    const NSPoint point = [self convertPoint:event.locationInWindow fromView:nil];
    const NSInteger row = [self rowAtPoint:point];
    if (row >= 0) {
        quorvane::callIfSet(self.onHover, row);
    }
}
@end

@interface QVListPanelController
    : NSObject <NSTableViewDataSource, NSTableViewDelegate, NSTextFieldDelegate>
- (instancetype)initWithHandlers:(ListPanel::Handlers)handlers;
- (void)setContent:(const ListPanelContent&)content;
- (void)showAt:(NSRect)frame;
- (void)close;
- (BOOL)isVisible;
@end

@implementation QVListPanelController {
    ListPanel::Handlers _handlers;
    ListPanelContent _content;
    QVKeyablePanel* _panel;
    NSTextField* _search;
    QVHoverTableView* _table;
    NSScrollView* _scroll;
    NSTextField* _empty;
    NSTextField* _error;
    NSTextField* _footer;
    id _resignToken;
}

- (instancetype)initWithHandlers:(ListPanel::Handlers)handlers {
    self = [super init];
    if (self == nil) {
        return nil;
    }
    _handlers = std::move(handlers);
    const NSRect size = NSMakeRect(0, 0, ListPanelContent::kWidth, ListPanelContent::kHeight);
    // A pop-up list over other apps' windows, on the Space and full-screen app in use.
    _panel = quorvane::makeFloatingWindow([QVKeyablePanel class], size,
                                          NSWindowStyleMaskNonactivatingPanel,
                                          NSPopUpMenuWindowLevel, [NSColor clearColor]);
    _panel.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces |
                                NSWindowCollectionBehaviorTransient |
                                NSWindowCollectionBehaviorFullScreenAuxiliary;
    _panel.alphaValue = 1;
    _panel.hasShadow = YES;
    _panel.acceptsMouseMovedEvents = YES;
    [self buildViews];

    __weak QVListPanelController* weakSelf = self;
    _resignToken = [[NSNotificationCenter defaultCenter]
        addObserverForName:NSWindowDidResignKeyNotification
                    object:_panel
                     queue:nil
                usingBlock:^(NSNotification*) {
                  QVListPanelController* strongSelf = weakSelf;
                  if (strongSelf != nil) {
                      quorvane::callIfSet(strongSelf->_handlers.resignedKey);
                  }
                }];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:_resignToken];
    [_panel orderOut:nil];
}

- (void)buildViews {
    NSVisualEffectView* background =
        quorvane::makeMaterialBackground(ListPanelContent::kCornerRadius);

    _search = [NSTextField textFieldWithString:@""];
    _search.delegate = self;
    _search.bezelStyle = NSTextFieldRoundedBezel;

    _table = [[QVHoverTableView alloc] init];
    NSTableColumn* column = [[NSTableColumn alloc] initWithIdentifier:@"row"];
    column.width = ListPanelContent::kWidth - 2 * ListPanelContent::kPadding;
    [_table addTableColumn:column];
    _table.headerView = nil;
    _table.rowHeight = ListPanelContent::kRowHeight;
    _table.intercellSpacing = NSMakeSize(0, 0);
    _table.backgroundColor = [NSColor clearColor];
    // The highlight is drawn from the model's selection, never from the table's own.
    _table.selectionHighlightStyle = NSTableViewSelectionHighlightStyleNone;
    _table.dataSource = self;
    _table.delegate = self;
    _table.target = self;
    _table.action = @selector(rowClicked:);
    __weak QVListPanelController* weakSelf = self;
    _table.onHover = ^(NSInteger row) {
      QVListPanelController* strongSelf = weakSelf;
      if (strongSelf != nil && strongSelf->_handlers.rowHovered) {
          const NSPoint location = [NSEvent mouseLocation];
          strongSelf->_handlers.rowHovered(static_cast<std::size_t>(row), {location.x, location.y});
      }
    };
    _scroll = [[NSScrollView alloc] init];
    _scroll.documentView = _table;
    _scroll.hasVerticalScroller = YES;
    _scroll.drawsBackground = NO;

    _empty = quorvane::makeLabel("");
    _empty.textColor = [NSColor secondaryLabelColor];
    _empty.alignment = NSTextAlignmentCenter;
    _error = quorvane::makeLabel("");
    _error.textColor = [NSColor systemOrangeColor];
    _footer = quorvane::makeLabel("");
    _footer.textColor = [NSColor secondaryLabelColor];
    _footer.font = [NSFont systemFontOfSize:11];

    NSView* content = _panel.contentView;
    for (NSView* view in @[ background, _search, _scroll, _empty, _error, _footer ]) {
        view.translatesAutoresizingMaskIntoConstraints = NO;
        [content addSubview:view];
    }
    quorvane::pinEdges(background, content, 0);
    const CGFloat pad = ListPanelContent::kPadding;
    [NSLayoutConstraint activateConstraints:@[
        [_search.topAnchor constraintEqualToAnchor:content.topAnchor constant:pad],
        [_search.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:pad],
        [_search.trailingAnchor constraintEqualToAnchor:content.trailingAnchor constant:-pad],
        [_scroll.topAnchor constraintEqualToAnchor:_search.bottomAnchor constant:pad],
        [_scroll.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:pad],
        [_scroll.trailingAnchor constraintEqualToAnchor:content.trailingAnchor constant:-pad],
        [_scroll.bottomAnchor constraintEqualToAnchor:_error.topAnchor constant:-pad / 2],
        [_empty.centerXAnchor constraintEqualToAnchor:_scroll.centerXAnchor],
        [_empty.centerYAnchor constraintEqualToAnchor:_scroll.centerYAnchor],
        [_error.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:pad],
        [_error.trailingAnchor constraintEqualToAnchor:content.trailingAnchor constant:-pad],
        [_error.bottomAnchor constraintEqualToAnchor:_footer.topAnchor constant:-pad / 2],
        [_footer.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:pad],
        [_footer.bottomAnchor constraintEqualToAnchor:content.bottomAnchor constant:-pad],
    ]];
}

- (void)setContent:(const ListPanelContent&)content {
    _content = content;
    _search.placeholderString = quorvane::text(content.placeholder);
    // Only a change from outside (a new search on opening) is written back: rewriting the
    // field under the user's typing would move the caret.
    NSString* query = quorvane::text(content.query);
    if (![_search.stringValue isEqualToString:query]) {
        _search.stringValue = query;
    }
    _empty.stringValue = quorvane::text(content.emptyText.value_or(""));
    _empty.hidden = !content.emptyText;
    _error.stringValue = quorvane::text(content.error);
    _error.hidden = content.error.empty();
    _footer.stringValue = quorvane::text(content.footer);
    [_table reloadData];
    if (const auto row = content.rowToReveal()) {
        [_table scrollRowToVisible:static_cast<NSInteger>(*row)];
    }
}

- (void)showAt:(NSRect)frame {
    [_panel setFrame:frame display:YES];
    // In front and key without activating Quorvane: the panel is non-activating.
    [_panel orderFrontRegardless];
    [_panel makeKeyWindow];
    [_panel makeFirstResponder:_search];
}

- (void)close {
    [_panel orderOut:nil];
}

- (BOOL)isVisible {
    return _panel.visible;
}

- (void)rowClicked:(id)sender {
    const NSInteger row = _table.clickedRow;
    if (row >= 0) {
        quorvane::callIfSet(_handlers.rowClicked, static_cast<std::size_t>(row));
    }
}

- (void)controlTextDidChange:(NSNotification*)notification {
    quorvane::callIfSet(_handlers.queryChanged, quorvane::utf8String(_search.stringValue));
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    return static_cast<NSInteger>(_content.rowCount);
}

- (NSView*)tableView:(NSTableView*)tableView
    viewForTableColumn:(NSTableColumn*)tableColumn
                   row:(NSInteger)index {
    if (!_handlers.row || index < 0) {
        return nil;
    }
    return quorvane::makeView(_handlers.row(static_cast<std::size_t>(index)).view(), nil);
}

@end

namespace quorvane {

namespace {

// The floating list as a borderless, non-activating NSPanel that can still become key: a
// search field over a table of rows and a footer line. It draws the content it is given and
// passes clicks, hovering, typing and the loss of key status to the handlers; every decision
// about them is made by the portable code behind the handlers.
class MacListPanel final : public ListPanel {
public:
    explicit MacListPanel(Handlers handlers)
        : controller_([[QVListPanelController alloc] initWithHandlers:std::move(handlers)]) {}
    MacListPanel(const MacListPanel&) = delete;
    MacListPanel& operator=(const MacListPanel&) = delete;

    ~MacListPanel() override { [controller_ close]; }

    void setContent(const ListPanelContent& content) override {
        @autoreleasepool {
            [controller_ setContent:content];
        }
    }

    void show(const Rect& frame) override {
        [controller_
            showAt:NSMakeRect(frame.origin.x, frame.origin.y, frame.size.width, frame.size.height)];
    }

    void close() override { [controller_ close]; }

    bool isVisible() const override { return [controller_ isVisible]; }

private:
    QVListPanelController* controller_;
};

}  // namespace

std::unique_ptr<ListPanel> makeMacListPanel(ListPanel::Handlers handlers) {
    return std::make_unique<MacListPanel>(std::move(handlers));
}

}  // namespace quorvane
