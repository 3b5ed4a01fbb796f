// Who owns a view.
#pragma once
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSNibName;

@interface NSViewController : NSResponder <NSUserInterfaceItemIdentification>
- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, strong) id representedObject;
@property(nullable, copy) NSString* title;
@property(strong) NSView* view;
- (void)loadView;
- (void)viewDidLoad;
@property(readonly, getter=isViewLoaded) BOOL viewLoaded;
// unsure: that only headers of macOS 14 and later declare `loadViewIfNeeded`, usable before
- (void)loadViewIfNeeded;
- (void)viewWillAppear;
- (void)viewDidAppear;
- (void)viewWillDisappear;
- (void)viewDidDisappear;
@property NSSize preferredContentSize;
- (void)updateViewConstraints;
- (void)viewWillLayout;
- (void)viewDidLayout;
@property(nullable, readonly) NSViewController* parentViewController;
@property(copy) NSArray<__kindof NSViewController*>* childViewControllers;
- (void)addChildViewController:(NSViewController*)childViewController;
- (void)removeFromParentViewController;
- (void)dismissController:(nullable id)sender;
@end

NS_ASSUME_NONNULL_END
