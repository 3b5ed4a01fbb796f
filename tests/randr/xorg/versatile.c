// A module of the X server for the tests: what real graphics hardware can do and the dummy
// driver can't. Every output can be shown by any of the first CRTCs, several outputs by
// one, and CRTCs turn, mirror and scale their picture.
//
// The number of CRTCs that show anything is CRTCS, fewer than there are outputs, so that
// they can run out. One mode, TOO_MUCH pixels wide, is more than the hardware can do.
#include <xorg-server.h>
#include <xf86.h>
#include <xf86Crtc.h>
#include <xf86Module.h>
#include <xf86RandR12.h>

#include <extension.h>
#include <globals.h>

#define CRTCS 3u
#define TOO_MUCH 1368

static Bool never = FALSE;

// What a turned picture is drawn into before it is "shown": ordinary memory.
static PixmapPtr createShadow(xf86CrtcPtr crtc, void *data, int width, int height) {
    const ScreenPtr screen = crtc->scrn->pScreen;
    (void)data;
    return screen->CreatePixmap(screen, width, height, screen->rootDepth, 0);
}

// There is nothing to allocate before; anything but null means that it worked.
static void *allocateShadow(xf86CrtcPtr crtc, int width, int height) {
    (void)width, (void)height;
    return crtc;
}

static void destroyShadow(xf86CrtcPtr crtc, PixmapPtr pixmap, void *data) {
    (void)data;
    if (pixmap) crtc->scrn->pScreen->DestroyPixmap(pixmap);
}

static Bool (*driversFixup)(xf86CrtcPtr, DisplayModePtr, DisplayModePtr);

static Bool fixUp(xf86CrtcPtr crtc, DisplayModePtr mode, DisplayModePtr adjusted) {
    return mode->HDisplay != TOO_MUCH && driversFixup(crtc, mode, adjusted);
}

// Called after the screen has its CRTCs, before it looks at what they can do.
static void makeVersatile(void) {
    static xf86CrtcFuncsRec functions;
    const xf86CrtcConfigPtr config = XF86_CRTC_CONFIG_PTR(xf86Screens[0]);
    functions = *config->crtc[0]->funcs;
    driversFixup = functions.mode_fixup;
    functions.mode_fixup = fixUp;
    functions.shadow_allocate = allocateShadow;
    functions.shadow_create = createShadow;
    functions.shadow_destroy = destroyShadow;
    for (int index = 0; index < config->num_crtc; ++index) config->crtc[index]->funcs = &functions;
    for (int index = 0; index < config->num_output; ++index) {
        config->output[index]->possible_crtcs = (1u << CRTCS) - 1;
        config->output[index]->possible_clones = (1u << config->num_output) - 1;
    }
    xf86RandR12SetRotations(screenInfo.screens[0],
                            RR_Rotate_0 | RR_Rotate_90 | RR_Rotate_180 | RR_Rotate_270 | RR_Reflect_X | RR_Reflect_Y);
    xf86RandR12SetTransformSupport(screenInfo.screens[0], TRUE);
}

static void *setUp(void *module, void *options, int *major, int *minor) {
    static const ExtensionModule extension = {makeVersatile, "VERSATILE", &never};
    (void)options, (void)major, (void)minor;
    LoadExtensionList(&extension, 1, FALSE);
    return module;
}

static XF86ModuleVersionInfo version = {
    "versatile", "tests", MODINFOSTRING1, MODINFOSTRING2, XORG_VERSION_CURRENT, 1, 0, 0,
    ABI_CLASS_EXTENSION, ABI_EXTENSION_VERSION, MOD_CLASS_NONE, {0, 0, 0, 0}};

_X_EXPORT XF86ModuleData versatileModuleData = {&version, setUp, NULL};
