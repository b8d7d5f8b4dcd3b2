import QtQuick

// Stands where the capturing device is expected while none is loaded, so that no binding meets an undefined one.
Item {
    id: dummy

    property bool connected: false
    property bool threadIsRunning: false
    property bool busy: false
    property int fps: 0
    property bool rotate: false
    property bool paused: false
    property bool renderSmooth: false
    property bool histogramOn: false
    property bool grayscale: false
    property bool eyedropperOn: false
    property real coordSystemWidth: 0
    property real coordSystemHeight: 0
    property string progressAction: ""
    property int progressTotal: 0
    property int progressCurrent: 0
    property int powerFactor: 0
    property QtObject global: null
    property bool useIcc: false
    property string iccPath: ""
    property bool dofEnabled: false
    property bool focusFrameOn: false
    property bool manualFocusEnabled: false
    property bool floatingPanelVisible: false
    property bool photoSaveTIFF: false
    property bool photoSaveRAW: false
    property bool wbTempValueEnabled: false
    property int wbTempValue: WbTempMin
    property int batteryLevel: -1
    property int zoomFactor: 1
    property string imageQualityCurrent: CanonCamImgQualityJPEG
    property string imageSizeCurrent: ""
    property string firmWareVer: ""
    property string lensFocusInfo: ""
    property var histogramDataY: [0, 0]
    property var histogramDataR: [0, 0]
    property var histogramDataG: [0, 0]
    property var histogramDataB: [0, 0]
    property real zoomRectPosX: 0
    property real zoomRectPosY: 0
    readonly property ListModel listOfCameras: emptyList
    readonly property ListModel wbModel: emptyList
    readonly property ListModel tvModel: emptyList
    readonly property ListModel isoModel: emptyList
    readonly property ListModel avModel: emptyList
    readonly property ListModel aeModel: emptyList
    readonly property ListModel expoCompModel: emptyList

    visible: false

    MorvaListModel {
        id: emptyList
    }
}
