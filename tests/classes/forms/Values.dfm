object ValuesForm: TValuesForm
  Tag = -1
  SmallNumbers = (
    0
    127
    -128
    128
    -129
    32767
    -32768)
  LargeNumbers = (
    32768
    -32769
    2147483647
    -2147483648
    2147483648
    -2147483649
    9223372036854775807
    -9223372036854775808)
  Ratio = 0.500000000000000000
  Third = 0.333333333333333300
  Angle = -57.295779513082320000
  Zero = 0.000000000000000000
  Huge = 1.5E300
  Opacity = 0.25
  Tiny = 1E-5
  Small = 0.0001
  Smaller = 1.5E-7
  Date = 40486.5115592708
  Single = 0.100000001490116s
  Price = 199900c
  Refund = -5c
  Created = 45000.75d
  Visible = True
  Enabled = False
  Master = nil
  Nothing = Null
  Cursor = crHandPoint
  DataSource = DataModule1.Customers
  Font.Name = 'Tahoma'
  Font.Style = []
  Anchors = [akLeft]
  Options = [goEditing, goTabs, goRowSelect]
  Days = [1, 31]
  Empty.Strings = ()
  Columns = <>
  Short.Data = {0123456789ABCDEF}
  None.Data = {}
  Line.Data = {
    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F}
  Lines.Data = {
    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F
    FF}
  OnCreate = FormCreate
end
