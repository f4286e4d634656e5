foreach(test IN ITEMS
        tst_AlertBox
        tst_ApplyWidgetStyle
        tst_AvailableDiskSpace
        tst_BoundedQuery
        tst_ClearAndFillPowerActionsComboBox
        tst_ConfirmationAlertBox
        tst_FilenameValidator
        tst_LookAndFeelManager
        tst_SchedulerHelper
        tst_SettingsFormat
        tst_SettingsManager
        tst_SettingsStore
        tst_StoredSettings
        tst_SystemClock
        tst_WheelEventsBlocker
        tst_ZFrame
        tst_ZLabel
        tst_bindWidgets
        tst_ioPath)
    scheduler_add_test(${test} LIBRARIES Zentor::ReferenceHost)
endforeach()
