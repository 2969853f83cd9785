object BrokenForm: TBrokenForm
  Caption = 'Broken'
  OnCreate = FormCreat
  object Probe: TProbe
  end
end
