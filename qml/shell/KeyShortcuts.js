// The key tables. A press runs the first row that matches, so the order matters: some rows can never be
// reached behind an earlier one, and stay so. A row has `keys`, and may have `mods` that must be held, `when`
// that must hold, and `once` for rows that ignore a held key's repeats.

function row(keys, run, conditions) {
    return Object.assign({
        keys: Array.isArray(keys) ? keys : [keys],
        mods: 0,
        once: false,
        when: () => true,
        run: run
    }, conditions);
}

function ctrl(keys, run, conditions) {
    return row(keys, run, Object.assign({ mods: Qt.ControlModifier }, conditions));
}

const nothing = () => {};
const onTab = tab => WebcamGlobal.currentActiveTab === tab;

function closeDialog() {
    FramesModel.copyModeOn = false;
    if (keyHandler.atRest()) {
        WebcamGlobal.globalDismiss();
        WebcamGlobal.dialogClosing();
    } else {
        keyHandler.cannotCloseDialog();
    }
    WebcamGlobal.printScreenModeOn = false;
    WebcamGlobal.layersSettingsOn = false;
}

function confirmDialog() {
    if (keyHandler.atRest()) {
        WebcamGlobal.globalConfirm();
        WebcamGlobal.dialogClosing();
    }
    WebcamGlobal.layersSettingsOn = false;
}

const dialogKeys = [
    row(Qt.Key_Escape, closeDialog),
    row(Qt.Key_Return, confirmDialog),
    row([Qt.Key_Tab, Qt.Key_Left, Qt.Key_Right], () => WebcamGlobal.tab(), { once: true }),
    row(Qt.Key_Space, () => WebcamGlobal.togglePlayerPlayPause(), { when: () => WebcamGlobal.videoExtractorOn }),
    ctrl(Qt.Key_S, () => WebcamGlobal.saveProject())
];

function hideTimelineBox() {
    WebcamGlobal.timelineHideAddBox();
    WebcamGlobal.globalDismiss();
    WebcamGlobal.timelineDismiss();
}

function playOrPause() {
    if (onTab(Zum.VideoTab))
        WebcamGlobal.togglePlayerPlayPause();
    else if (onTab(Zum.TimingTab))
        keyHandler.scene.stopPlayRamPreview();
}

const keypadKeys = [
    row(Qt.Key_Minus, hideTimelineBox),
    row(Qt.Key_Plus, () => WebcamGlobal.timelineShowAddBox()),
    row([Qt.Key_Home, Qt.Key_9, Qt.Key_7, Qt.Key_PageUp], () => WebcamGlobal.timelineGotoStart()),
    row([Qt.Key_3, Qt.Key_1, Qt.Key_End, Qt.Key_PageDown], () => WebcamGlobal.timelineGotoEnd()),
    row(Qt.Key_Left, () => WebcamGlobal.timelinePrevFrame()),
    row(Qt.Key_Right, () => WebcamGlobal.timelineNextFrame()),
    row(Qt.Key_Tab, () => WebcamGlobal.switchDisplayTab()),
    row(Qt.Key_0, playOrPause),
    row(Qt.Key_Delete, () => WebcamGlobal.timelineDeleteFrames()),
    row([Qt.Key_Enter, Qt.Key_Return], () => keyHandler.onReturn()),
    row([Qt.Key_NumLock, Qt.Key_Asterisk, Qt.Key_Slash, Qt.Key_Backspace, Qt.Key_multiply, Qt.Key_8, Qt.Key_Up,
         Qt.Key_4, Qt.Key_5, Qt.Key_6, Qt.Key_2, Qt.Key_Down], nothing)
];

function dismissAll() {
    FramesModel.copyModeOn = false;
    FramesModel.cutModeOn = false;
    if (MainWindow.isFullscreen)
        MainWindow.normal();
    WebcamGlobal.globalDismiss();
    WebcamGlobal.timelineDismiss();
    WebcamGlobal.printScreenModeOn = false;
    WebcamGlobal.layersSettingsOn = false;
}

function connectOrReconnect() {
    if (WebcamGlobal.connected)
        keyHandler.scene.camReconnectConfirmBox();
    else
        WebcamGlobal.capturingDeviceConnect();
}

function step(event, playerStep, timelineStep) {
    if (onTab(Zum.VideoTab)) {
        playerStep();
        return;
    }
    if (event.modifiers & Qt.ShiftModifier)
        WebcamGlobal.timelineSelectFrame();
    timelineStep();
}

function spaceKey() {
    if (onTab(Zum.CaptureTab))
        keyHandler.quickTabToggle();
    else
        playOrPause();
}

const plainKeys = [
    row(Qt.Key_Return, () => keyHandler.onReturn()),
    ctrl([Qt.Key_Enter, Qt.Key_Return], () => keyHandler.cannotEnableTimeLapse(),
         { when: () => WebcamGlobal.flipFlopRunning }),
    row(Qt.Key_Shift, () => WebcamGlobal.key_Shift()),
    ctrl(Qt.Key_Shift, () => WebcamGlobal.key_ControlShift()),
    row(Qt.Key_Alt, () => {
        WebcamGlobal.timelineInteractive = false;
        WebcamGlobal.key_Alt();
    }),
    row(Qt.Key_Enter, () => WebcamGlobal.dialogClosing()),
    ctrl(Qt.Key_C, () => keyHandler.scene.copyFrames()),
    ctrl(Qt.Key_X, () => keyHandler.scene.cutFrames()),
    ctrl(Qt.Key_V, () => keyHandler.scene.pasteFrames()),
    ctrl(Qt.Key_D, () => WebcamGlobal.timelineFrameDuplicate()),
    ctrl(Qt.Key_S, () => WebcamGlobal.saveProject()),
    ctrl(Qt.Key_A, () => FramesModel.selectAll()),
    ctrl(Qt.Key_N, () => WebcamGlobal.projectCreateNew()),
    ctrl(Qt.Key_W, () => keyHandler.scene.previewWindow()),
    ctrl(Qt.Key_O, () => keyHandler.scene.openProject()),
    ctrl(Qt.Key_Z, () => FramesModel.undo()),
    ctrl(Qt.Key_Y, () => FramesModel.redo()),
    ctrl(Qt.Key_Q, () => MainWindow.quit()),
    row(Qt.Key_P, () => keyHandler.scene.propertiesBox()),
    ctrl(Qt.Key_I, () => keyHandler.scene.importClipboardImages(), { when: () => MainWindow.projectLoaded }),
    ctrl(Qt.Key_Equal, () => WebcamGlobal.focusNear2()),
    ctrl(Qt.Key_Minus, () => WebcamGlobal.focusFar2()),
    row(Qt.Key_Escape, dismissAll),
    row(Qt.Key_F1, () => WebcamGlobal.mainTabsState = "docsUIisOn"),
    row(Qt.Key_F3, () => keyHandler.scene.lastProjects(), { when: () => !onTab(Zum.DocsTab) }),
    row([Qt.Key_F4, Qt.Key_F7, Qt.Key_F8], nothing),
    row(Qt.Key_F5, connectOrReconnect, { when: () => onTab(Zum.CaptureTab) }),
    row(Qt.Key_F5, () => WebcamGlobal.webPaneReload(), { when: () => onTab(Zum.DocsTab) }),
    row(Qt.Key_F6, () => keyHandler.scene.switchLayout("maximized"), { when: () => !onTab(Zum.DocsTab) }),
    row(Qt.Key_F6, () => WebcamGlobal.webPaneExpand(), { when: () => onTab(Zum.DocsTab) }),
    row(Qt.Key_F11, () => keyHandler.scene.toggleFullscreen()),
    row(Qt.Key_F12, () => {
        keyHandler.scene.propertiesBox();
        FramesModel.layoutChanged();
    }),
    ctrl(Qt.Key_F2, () => WebcamGlobal.printScreenModeOn = !WebcamGlobal.printScreenModeOn),
    row(Qt.Key_Insert, () => WebcamGlobal.timelineSelectFrame()),
    row(Qt.Key_Delete, () => WebcamGlobal.timelineDeleteFrames()),
    row(Qt.Key_End, () => WebcamGlobal.timelineGotoEnd()),
    row(Qt.Key_Home, () => WebcamGlobal.timelineGotoStart()),
    row(Qt.Key_Left, event => step(event, () => WebcamGlobal.videoPlayerStepLeft(),
                                   () => WebcamGlobal.timelinePrevFrame()), { once: true }),
    row(Qt.Key_Right, event => step(event, () => WebcamGlobal.videoPlayerStepRight(),
                                    () => WebcamGlobal.timelineNextFrame()), { once: true }),
    row(Qt.Key_Minus, () => WebcamGlobal.timelineHideAddBox()),
    row(Qt.Key_Equal, () => WebcamGlobal.timelineShowAddBox()),
    row(Qt.Key_Space, spaceKey, { once: true }),
    row(Qt.Key_Tab, () => WebcamGlobal.switchDisplayTab(), { when: () => onTab(Zum.CaptureTab) }),
    row(Qt.Key_Control, () => WebcamGlobal.key_Control()),
    row(Qt.Key_Backspace, () => WebcamGlobal.key_Backspace()),
    row(Qt.key_MediaPlay, () => WebcamGlobal.key_MediaPlay()),
    row(Qt.key_MediaPause, () => WebcamGlobal.key_MediaPause()),
    row(Qt.key_MediaTogglePlayPause, () => WebcamGlobal.key_MediaTogglePlayPause()),
    row(Qt.key_MediaStop, () => WebcamGlobal.key_MediaStop()),
    row(Qt.key_MediaRecord, () => WebcamGlobal.key_MediaRecord()),
    row(Qt.key_MediaNext, () => WebcamGlobal.key_MediaNext()),
    row(Qt.key_MediaPrevious, () => WebcamGlobal.key_MediaPrevious()),
    row(Qt.Key_F9, () => keyHandler.scene.switchLayout("compacted"))
];

function matches(row, event) {
    return row.keys.includes(event.key) && (event.modifiers & row.mods) === row.mods
        && !(row.once && event.isAutoRepeat) && row.when();
}

function runFirst(rows, event) {
    const row = rows.find(candidate => matches(candidate, event));
    if (row)
        row.run(event);
    return row !== undefined;
}

// True when a row ran.
function press(event) {
    if (MainWindow.qmlDialogVisible)
        return runFirst(dialogKeys, event);
    if ((event.modifiers & Qt.KeypadModifier) && !event.isAutoRepeat && runFirst(keypadKeys, event))
        return true;
    return runFirst(plainKeys, event);
}
