import QtQuick
import Zum 1.0

// The tools for what is on the screen, in a column beside the picture. Each tab has those that mean something there.
Rectangle {
    id: screenControls

    required property var scene
    required property var timingSize
    property bool shown: true
    property real capturePixelZoom: 0
    property real timingPixelZoom: 0
    readonly property bool capture: WebcamGlobal.currentActiveTab === Zum.CaptureTab
    readonly property bool timing: WebcamGlobal.currentActiveTab === Zum.TimingTab
    readonly property bool useful: shown && MainWindow.projectLoaded && (capture || timing)

    width: useful ? Theme.controlHeight + 2 * DefFontSizePico : 0
    visible: width > 0
    color: GlobalDarkerColor
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Tools of the picture")

    // Made when they are first of use.
    LastingLoader {
        anchors.fill: parent
        anchors.topMargin: DefFontSizeMicro
        wanted: screenControls.useful
        sourceComponent: Flickable {
            contentHeight: tools.height + DefFontSizeMicro
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: true

            Column {
                id: tools

                anchors.horizontalCenter: parent.horizontalCenter
                spacing: DefFontSizeNano

                ToolDrop {
                    icon: "svgicons/zoom-in.svg"
                    title: qsTr("Zoom")
                    toolTip: qsTr("Zoom") + " [" + qsTr("Wheel") + "]"
                    toggled: WebcamGlobal[zoomPanel.factorName] !== 1

                    ZoomTool {
                        id: zoomPanel

                        factorName: screenControls.capture ? "camScaleFactor" : "ramScaleFactor"
                        pixelZoom: screenControls.capture ? screenControls.capturePixelZoom
                                                          : screenControls.timingPixelZoom
                    }
                }

                ToolDrop {
                    icon: "svgicons/overlay.svg"
                    title: qsTr("Helper lines")
                    toolTip: qsTr("Helper lines over the picture")
                    toggled: WebcamGlobal.marginsOn || WebcamGlobal.gridOn || WebcamGlobal.crossOn
                             || WebcamGlobal.safeAreaOn || WebcamGlobal.ruleOfThirdsGridOn

                    OverlayTools {}
                }

                ToolDrop {
                    visible: screenControls.capture
                    icon: WebcamGlobal.stackMode === Zum.StackPast ? "svgicons/onion-past.svg"
                          : WebcamGlobal.stackMode === Zum.StackFuture ? "svgicons/onion-future.svg" : "svgicons/onion.svg"
                    title: qsTr("Onion skin")
                    toolTip: qsTr("Onion skin: frames that shine through")
                    toggled: WebcamGlobal.stackMode !== Zum.NoStack

                    OnionskinTool {}
                }

                ToolDrop {
                    visible: screenControls.capture
                    icon: WebcamGlobal.flipFlop === Zum.FadeFlipFlop ? "svgicons/flip-fade.svg"
                          : WebcamGlobal.flipFlop === Zum.FlashFlipFlop ? "svgicons/flip-flash.svg" : "svgicons/flipflop.svg"
                    title: qsTr("Flip-flop")
                    toolTip: qsTr("Flip-flop: blinks the frame against the live picture")
                    toggled: WebcamGlobal.flipFlop !== Zum.NoFlipFlop

                    FlipFlop {}
                }

                ToolDrop {
                    visible: screenControls.capture
                    icon: WebcamGlobal.blendModes[WebcamGlobal.blend].icon
                    panelWidth: 30 * DefFontSizeNormal
                    title: qsTr("Blend: %1").arg(WebcamGlobal.getBlendName(WebcamGlobal.blend))
                    toolTip: qsTr("How the layers blend") + ": " + WebcamGlobal.getBlendName(WebcamGlobal.blend)
                    toggled: WebcamGlobal.blend !== Zum.NoBlend || WebcamGlobal.grayscale

                    BlendTool {}
                }

                ToolDrop {
                    visible: screenControls.capture && FramesModel.doubleDecker
                    icon: "svgicons/scale.svg"
                    title: qsTr("Size of the reference")
                    toolTip: qsTr("Size of the reference frame")
                    toggled: WebcamGlobal.referenceImageScale !== referenceImageScaleDef

                    ReferenceSizeTool {}
                }

                ToolDrop {
                    visible: screenControls.timing
                    icon: "svgicons/image.svg"
                    title: qsTr("Size of the picture")
                    toolTip: qsTr("Size and opacity of the picture")
                    toggled: WebcamGlobal.foregroundOpacity !== 1

                    SizeTool {
                        size: screenControls.timingSize
                    }
                }

                ScreenSwitches {
                    scene: screenControls.scene
                    timing: screenControls.timing
                }
            }
        }
    }
}
