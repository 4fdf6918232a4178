#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacMenuPanelView.hpp"

#include <string>

#include "base/Subscription.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacViews.hpp"
#include "ui/MenuModel.hpp"

namespace {

constexpr std::size_t kTilesPerRow = 3;
constexpr CGFloat kTileWidth = 88;
constexpr CGFloat kPanelWidth = 3 * kTileWidth + 2 * 8;  // three tiles and their gaps

}  // namespace

// unconfirmed: check on a Mac first. NSButton's image position, push-on-push-off type,
// bordered flag, key equivalents and tool tips, NSBox's separator type and the stack-view
// edge insets are not in the fact sheet.
@implementation QVMenuPanelView {
    quorvane::MenuModel* _model;
    quorvane::Subscription _changes;
    NSStackView* _grid;
    NSMutableArray* _tileTargets;
    NSMutableArray* _targets;
}

- (instancetype)initWithModel:(quorvane::MenuModel&)model {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _model = &model;
    _tileTargets = [NSMutableArray array];
    _targets = [NSMutableArray array];
    self.orientation = NSUserInterfaceLayoutOrientationVertical;
    self.alignment = NSLayoutAttributeLeading;
    self.spacing = 8;
    self.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 12);

    _grid = quorvane::makeColumn(8);
    [self addArrangedSubview:_grid];
    NSBox* separator = [[NSBox alloc] initWithFrame:NSZeroRect];
    separator.boxType = NSBoxSeparator;
    [self addArrangedSubview:separator];
    [separator.widthAnchor constraintEqualToConstant:kPanelWidth].active = YES;
    quorvane::MenuModel* menu = _model;
    [self addArrangedSubview:[self menuButton:quorvane::MenuModel::kSettingsTitle
                                          key:@","
                                       action:^{
                                         menu->openSettings();
                                       }]];
    [self addArrangedSubview:[self menuButton:quorvane::MenuModel::kQuitTitle
                                          key:@"q"
                                       action:^{
                                         menu->quit();
                                       }]];
    [self rebuildTiles];

    __weak QVMenuPanelView* weakSelf = self;
    QVRefresher* refresher = [[QVRefresher alloc] initWithRefresh:^{
      [weakSelf rebuildTiles];
    }];
    _changes = model.subscribe([refresher] { [refresher request]; });
    return self;
}

- (NSButton*)menuButton:(const char*)title key:(NSString*)key action:(void (^)(void))action {
    NSButton* button = [NSButton buttonWithTitle:quorvane::text(title) target:nil action:nil];
    button.bordered = NO;
    button.keyEquivalent = key;
    button.keyEquivalentModifierMask = NSEventModifierFlagCommand;
    [QVActionTarget bind:button
                    keep:_targets
                 handler:^(id) {
                   action();
                 }];
    return button;
}

- (void)rebuildTiles {
    quorvane::removeArrangedViews(_grid);
    [_tileTargets removeAllObjects];
    const auto tiles = _model->tiles();
    if (tiles.empty()) {
        [_grid addArrangedSubview:quorvane::makeSecondaryLabel(quorvane::MenuModel::kEmptyText,
                                                               kPanelWidth)];
    }
    NSStackView* line = nil;
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        if (index % kTilesPerRow == 0) {
            line = quorvane::makeRow(8);
            [_grid addArrangedSubview:line];
        }
        [line addArrangedSubview:[self tile:tiles[index]]];
    }
    [self setFrameSize:self.fittingSize];
}

- (NSButton*)tile:(const quorvane::MenuModel::Tile&)tile {
    NSButton* button = [NSButton buttonWithTitle:quorvane::text(tile.title) target:nil action:nil];
    NSImage* image = [NSImage imageWithSystemSymbolName:quorvane::text(tile.systemImage)
                               accessibilityDescription:nil];
    if (image) {
        button.image = image;
        button.imagePosition = NSImageAbove;
    }
    [button setButtonType:NSButtonTypePushOnPushOff];
    button.state = tile.isOn ? NSControlStateValueOn : NSControlStateValueOff;
    button.toolTip = quorvane::text(tile.status);
    [button.widthAnchor constraintEqualToConstant:kTileWidth].active = YES;
    [button.heightAnchor constraintEqualToConstant:64].active = YES;
    quorvane::MenuModel* model = _model;
    const std::string toolID = tile.toolID;
    [QVActionTarget bind:button
                    keep:_tileTargets
                 handler:^(id) {
                   model->press(toolID);
                 }];
    return button;
}

@end
