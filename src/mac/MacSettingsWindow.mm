#include "mac/MacSettingsWindow.hpp"

#include <cstdint>
#include <vector>

#include "base/Subscription.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacSettingsPageView.hpp"
#include "mac/MacViewNode.hpp"
#include "mac/MacViews.hpp"
#include "ui/PermissionCardsView.hpp"
#include "ui/SettingsWindowModel.hpp"

namespace {

using Model = quorvane::SettingsWindowModel;

constexpr CGFloat kSidebarWidth = 230;
constexpr CGFloat kPageWidth = 520;

}  // namespace

// unconfirmed: check on a Mac first. The window (beyond its initializer and style masks),
// NSWindowController, NSSearchField, NSTableView with its data source and delegate methods,
// NSTableColumn, NSSwitch, NSIndexSet, the table's source-list style and the stack views'
// fill distribution are not in the fact sheet.
@implementation QVSettingsWindowController {
    Model* _model;
    quorvane::Subscription _changes;
    std::vector<Model::SidebarRow> _rows;
    NSSearchField* _search;
    NSTableView* _sidebar;
    NSTextField* _noResults;
    NSStackView* _header;
    NSStackView* _cards;
    NSStackView* _pageHolder;
    std::uint64_t _pageGeneration;
    NSMutableArray* _targets;
    NSMutableArray* _headerTargets;
    NSMutableArray* _cardTargets;
    BOOL _reloadingSidebar;
}

- (instancetype)initWithModel:(Model&)model {
    NSWindow* window = [[NSWindow alloc]
        initWithContentRect:NSMakeRect(0, 0, kSidebarWidth + kPageWidth + 80, 600)
                  styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                            NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable
                    backing:NSBackingStoreBuffered
                      defer:NO];
    window.title = @"Quorvane Settings";
    // The controller owns the window; closing it only hides it until it is shown again.
    window.releasedWhenClosed = NO;
    window.minSize = NSMakeSize(kSidebarWidth + 420, 420);
    self = [super initWithWindow:window];
    if (!self) {
        return nil;
    }
    // Told when the window closes, to stop a recorder that is still listening.
    window.delegate = self;
    _model = &model;
    _targets = [NSMutableArray array];
    _headerTargets = [NSMutableArray array];
    _cardTargets = [NSMutableArray array];

    // The sidebar keeps its width; the page takes the rest, and both the full height.
    NSView* sidebar = [self makeSidebar];
    NSView* page = [self makePage];
    NSStackView* root = quorvane::makeRow(0, @[ sidebar, page ]);
    root.alignment = NSLayoutAttributeTop;
    root.distribution = NSStackViewDistributionFill;
    [window.contentView addSubview:root];
    quorvane::pinEdges(root, window.contentView, 0);
    [NSLayoutConstraint activateConstraints:@[
        [sidebar.heightAnchor constraintEqualToAnchor:root.heightAnchor],
        [page.heightAnchor constraintEqualToAnchor:root.heightAnchor],
    ]];
    [window center];

    [self refresh];
    __weak QVSettingsWindowController* weakSelf = self;
    QVRefresher* refresher = [[QVRefresher alloc] initWithRefresh:^{
      [weakSelf refresh];
    }];
    _changes = model.subscribe([refresher] { [refresher request]; });
    return self;
}

- (NSView*)makeSidebar {
    _search = [[NSSearchField alloc] initWithFrame:NSZeroRect];
    _search.placeholderString = quorvane::text(Model::kSearchPlaceholder);
    Model* model = _model;
    NSSearchField* search = _search;
    [QVActionTarget bind:_search
                    keep:_targets
                 handler:^(id) {
                   model->setQuery(quorvane::utf8String(search.stringValue));
                 }];

    _sidebar = [[NSTableView alloc] initWithFrame:NSZeroRect];
    NSTableColumn* column = [[NSTableColumn alloc] initWithIdentifier:@"tools"];
    column.resizingMask = NSTableColumnAutoresizingMask;
    [_sidebar addTableColumn:column];
    _sidebar.headerView = nil;
    _sidebar.style = NSTableViewStyleSourceList;
    _sidebar.columnAutoresizingStyle = NSTableViewFirstColumnOnlyAutoresizingStyle;
    _sidebar.rowHeight = 26;
    _sidebar.dataSource = self;
    _sidebar.delegate = self;
    NSScrollView* list = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    list.documentView = _sidebar;
    list.hasVerticalScroller = YES;
    list.drawsBackground = NO;

    _noResults = quorvane::makeSecondaryLabel(Model::kNoResults, kSidebarWidth - 24);

    NSStackView* sidebar = quorvane::makeColumn(8, @[ _search, _noResults, list ]);
    sidebar.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 0);
    // The list takes whatever height the search field and the notice leave.
    sidebar.distribution = NSStackViewDistributionFill;
    [NSLayoutConstraint activateConstraints:@[
        [sidebar.widthAnchor constraintEqualToConstant:kSidebarWidth],
        [_search.widthAnchor constraintEqualToConstant:kSidebarWidth - 12],
        [list.widthAnchor constraintEqualToConstant:kSidebarWidth - 12],
        [list.heightAnchor constraintGreaterThanOrEqualToConstant:300],
    ]];
    return sidebar;
}

- (NSView*)makePage {
    _header = quorvane::makeColumn(10);
    _cards = quorvane::makeColumn(12);
    _pageHolder = quorvane::makeColumn(0);
    return quorvane::makeScrollView(quorvane::makeColumn(24, @[ _header, _cards, _pageHolder ]),
                                    24);
}

- (void)refresh {
    // Selecting rows from here would read as the user's selection; the flag keeps it out.
    _reloadingSidebar = YES;
    _rows = _model->sidebar();
    [_sidebar reloadData];
    if (const auto selected = _model->selectedRow()) {
        [_sidebar selectRowIndexes:[NSIndexSet indexSetWithIndex:*selected]
              byExtendingSelection:NO];
    } else {
        [_sidebar deselectAll:nil];
    }
    _reloadingSidebar = NO;
    _noResults.hidden = !_rows.empty();
    // The query only changes under the user's typing when a tool's page is opened from
    // elsewhere.
    quorvane::showUnlessEditing(_search, _model->query());

    quorvane::fillStack(_header, _model->headerView(kPageWidth), _headerTargets);
    quorvane::fillStack(_cards, quorvane::permissionCardsView(*_model, kPageWidth), _cardTargets);
    if (_model->pageGeneration() != _pageGeneration) {
        _pageGeneration = _model->pageGeneration();
        [self stopRecording];
        quorvane::removeArrangedViews(_pageHolder);
        [_pageHolder
            addArrangedSubview:[[QVSettingsPageView alloc] initWithPage:_model->page()
                                                                 source:_model->pageSource()
                                                                  width:kPageWidth]];
    }
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    return static_cast<NSInteger>(_rows.size());
}

- (NSView*)tableView:(NSTableView*)tableView
    viewForTableColumn:(NSTableColumn*)tableColumn
                   row:(NSInteger)row {
    return quorvane::makeView(_rows[static_cast<std::size_t>(row)].view(), nil);
}

- (BOOL)tableView:(NSTableView*)tableView isGroupRow:(NSInteger)row {
    return _rows[static_cast<std::size_t>(row)].isHeading();
}

- (BOOL)tableView:(NSTableView*)tableView shouldSelectRow:(NSInteger)row {
    return !_rows[static_cast<std::size_t>(row)].isHeading();
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification {
    const NSInteger row = _sidebar.selectedRow;
    if (!_reloadingSidebar && row >= 0) {
        _model->selectRow(static_cast<std::size_t>(row));
    }
}

// A recorder that still listens keeps every global shortcut paused, so none outlives its page
// or the window.
- (void)stopRecording {
    for (NSView* view in _pageHolder.arrangedSubviews) {
        if ([view isKindOfClass:[QVSettingsPageView class]]) {
            [static_cast<QVSettingsPageView*>(view) stopRecording];
        }
    }
}

- (void)windowWillClose:(NSNotification*)notification {
    [self stopRecording];
}

@end
