import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Module"

    KORU_UI {
        id: koru
    }

    function test_testItem() {
        compare(koru.testString, "This is a very big test!")
    }

    function test_olderImportStillLoads() {
        const item = Qt.createQmlObject("import VynUI 1.0; KORU_UI {}", testCase)
        verify(item)
        compare(item.testString, "This is a very big test!")
        item.destroy()
    }
}
