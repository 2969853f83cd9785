inherited ChildForm: TChildForm
  Caption = 'Child'
  inherited Panel: TPanel
    inherited OkButton: TButton [2]
      Default = True
    end
    object TButton
      Left = 8
    end
  end
  inline Frame1: TFrame1 [0]
    Left = 10
    inherited Edit1: TEdit
      Text = 'in the frame'
    end
  end
  object Grid: TGrid [-1]
    Columns = <
      item
      end
      item
        Title.Caption = 'Name'
        Fields = <
          item [4]
            FieldName = 'ID'
          end>
      end
      item [300]
        Values = (
          1
          (
            'inner'
            ())
          [a, b]
          <
            item
              Data = {00}
            end>)
      end>
  end
end
